#include "host/files/FileError.h"
#include "host/files/LoadValues.h"
#include "host/files/ProjectFile.h"
#include "host/files/ProjectSchema.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

class Writer {
  public:
    Writer(const DocumentData& data, Database& database) : m_data(data), m_database(database) {}

    void Write(const std::string& version) {
        m_database.Execute(("PRAGMA application_id = " + std::to_string(projectApplicationId)).c_str());
        m_database.Execute(("PRAGMA user_version = " + std::to_string(projectFormat)).c_str());
        m_database.Execute("BEGIN");
        for (const Table* table : tables::current)
            m_database.Execute(CreationSql(*table).c_str());
        WriteProperties();
        WriteCases();
        WriteNodes();
        WriteLines(Kind::Beam, tables::beams);
        WriteLines(Kind::Truss, tables::trusses);
        WritePolygons(Kind::Wall, tables::walls);
        WritePolygons(Kind::Slab, tables::slabs);
        WriteAttached();
        WriteMembers();
        WriteGrid();
        WriteProject(version);
        m_database.Execute("COMMIT");
    }

  private:
    template <class T, class Function>
    void ForEach(Kind kind, Function function) {
        for (int i = 0; i < m_data.Size(kind); ++i)
            function(*m_data.As<T>(kind, i));
    }

    static RowWriter& Name(RowWriter& row, CElementoStrutturale& entity) {
        return row.Put(entity.GetID()).Put(entity.GetNome()).Put(entity.GetTipo());
    }

    // Last, since it says how many rows there are.
    void WriteProject(const std::string& version) {
        const ProjectInfo& info = m_data.Info();
        const int rows = m_rows;
        RowWriter row(m_database, tables::project, m_rows);
        row.Put(info.title).Put(info.author).Put(info.date).Put(info.notes);
        row.Put(static_cast<int>(m_data.Units().length)).Put(static_cast<int>(m_data.Units().force));
        row.Put(m_data.Tolerance()).Put(m_data.CurrentCase());
        row.PutUtf8(version).Put(rows);
        row.End();
    }

    void WriteProperties() {
        RowWriter materials(m_database, tables::materials, m_rows);
        ForEach<CMateriale>(Kind::Material, [&](CMateriale& m) {
            Name(materials, m).Put(m.GetE()).Put(m.GetG()).Put(m.GetPoisson()).Put(m.GetDensity()).Put(m.GetAlpha());
            materials.End();
        });
        RowWriter sections(m_database, tables::sections, m_rows);
        ForEach<CSezione>(Kind::Section, [&](CSezione& s) {
            Name(sections, s).Put(s.GetArea()).Put(s.GetArea2()).Put(s.GetArea3()).Put(s.GetJ());
            sections.Put(s.GetI2()).Put(s.GetI3()).Put(s.GetW2()).Put(s.GetW3()).Put(s.GetBase()).Put(s.GetHeight());
            sections.End();
        });
        RowWriter thicknesses(m_database, tables::thicknesses, m_rows);
        ForEach<CSpessore>(Kind::Thickness, [&](CSpessore& t) {
            Name(thicknesses, t).Put(t.GetThickness());
            thicknesses.End();
        });
    }

    void WriteCases() {
        RowWriter cases(m_database, tables::loadCases, m_rows);
        RowWriter loads(m_database, tables::loads, m_rows);
        ForEach<CCasoCarico>(Kind::LoadCase, [&](CCasoCarico& loadCase) {
            Name(cases, loadCase).End();
            for (int i = 0; i < loadCase.GetSizeCarichi(); ++i)
                WriteLoad(loads, loadCase.GetID(), *loadCase.GetIndexCarico(i));
        });
        RowWriter combinations(m_database, tables::combinations, m_rows);
        RowWriter factors(m_database, tables::factors, m_rows);
        ForEach<CCombinazione>(Kind::Combination, [&](CCombinazione& combination) {
            Name(combinations, combination).End();
            for (int i = 0; i < combination.GetSizeCDC(); ++i) {
                double factor = 0;
                combination.GetFattoreCDC(i, factor);
                factors.Put(combination.GetID()).Put(combination.GetIDCDC(i)).Put(factor).End();
            }
        });
    }

    static void WriteLoad(RowWriter& row, int caseId, CCarico& load) {
        row.Put(caseId).Put(load.GetID()).Put(load.GetTipoElemento()).Put(load.GetReference());
        row.Put(load.GetSetId());
        const LoadValues list = ValuesOf(load);
        for (int i = 0; i < static_cast<int>(list.values.size()); ++i)
            row.Put(i < list.count ? *list.values[static_cast<std::size_t>(i)] : 0.0);
        row.End();
    }

    void WriteNodes() {
        RowWriter nodes(m_database, tables::nodes, m_rows);
        RowWriter springs(m_database, tables::springs, m_rows);
        ForEach<CNodo>(Kind::Node, [&](CNodo& node) {
            const CFPoint& place = *node.GetPunto();
            const CVincolo* restraint = node.GetVincolo();
            nodes.Put(node.GetID()).Put(place.x).Put(place.y).Put(place.z);
            nodes.Put(restraint ? restraint->GetMask() : 0u).Put(node.IsVisible() != 0);
            nodes.End();
            for (int i = 0; i < node.GetSizeMolle(); ++i) {
                CMolla& spring = *node.GetIndexMolla(i);
                const CFPoint& along = spring.GetDirection();
                springs.Put(node.GetID()).Put(spring.GetTipo()).Put(spring.GetStiffness().GetValue());
                springs.Put(along.x).Put(along.y).Put(along.z).End();
            }
        });
    }

    void WriteLines(Kind kind, const Table& table) {
        RowWriter row(m_database, table, m_rows);
        ForEach<CLineaFisica>(kind, [&](CLineaFisica& line) {
            row.Put(line.GetID()).Put(line.GetIDNodoIniziale()).Put(line.GetIDNodoFinale());
            row.Put(line.GetIDMateriale()).Put(line.GetIDSezione()).Put(line.GetBeta());
            row.Put(line.IsVisible() != 0).End();
        });
    }

    void WritePolygons(Kind kind, const Table& table) {
        RowWriter row(m_database, table, m_rows);
        RowWriter vertices(m_database, tables::vertices, m_rows);
        ForEach<CPoligonoFisico>(kind, [&](CPoligonoFisico& polygon) {
            row.Put(polygon.GetID()).Put(polygon.GetIDMateriale()).Put(polygon.GetIDSpessore());
            row.Put(polygon.IsVisible() != 0).End();
            for (int i = 0; i < polygon.GetSize(); ++i)
                vertices.Put(CodeOf(kind)).Put(polygon.GetID()).Put(polygon.GetIDVertice(i)).End();
        });
    }

    // Releases of lines, and which elements carry which loads.
    void WriteAttached() {
        RowWriter loaded(m_database, tables::loaded, m_rows);
        RowWriter releases(m_database, tables::releases, m_rows);
        for (const Kind kind : allKinds) {
            if (!IsSelectableKind(kind))
                continue;
            ForEach<CElementoCarico>(kind, [&](CElementoCarico& carrier) {
                for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
                    loaded.Put(CodeOf(kind)).Put(carrier.GetID()).Put(carrier.GetIndexIDCasoCarico(i));
                    loaded.Put(carrier.GetIndexIDCarico(i)).End();
                }
                if (IsLineKind(kind))
                    WriteReleases(releases, kind, static_cast<CElementoSpecifiche&>(carrier));
            });
        }
    }

    static void WriteReleases(RowWriter& row, Kind kind, CElementoSpecifiche& line) {
        for (int i = 0; i < line.GetSizeSpecifiche(); ++i) {
            auto* release = DYNAMIC_DOWNCAST(CSpecificheSvincoliTrave, line.GetIndexSpecifica(i));
            if (!release)
                continue;
            row.Put(CodeOf(kind)).Put(line.GetID()).Put(release->GetID()).Put(release->GetEnd());
            for (int j = 0; j < 4; ++j)
                row.Put(release->GetRelease(j));
            row.End();
        }
    }

    void WriteMembers() {
        RowWriter groups(m_database, tables::groups, m_rows);
        RowWriter members(m_database, tables::members, m_rows);
        ForEach<CGruppo>(Kind::Group, [&](CGruppo& group) {
            Name(groups, group).End();
            for (int i = 0; i < group.GetSizeElementi(); ++i)
                members.Put(group.GetID()).Put(group.GetElementKindAt(i)).Put(group.GetElementIdAt(i)).End();
        });
    }

    void WriteGrid() {
        const ConstructionGrid& grid = m_data.Grid();
        RowWriter row(m_database, tables::grid, m_rows);
        row.Put(grid.shown).Put(grid.plane).Put(grid.tilt);
        row.Put(grid.origin.x).Put(grid.origin.y).Put(grid.origin.z);
        for (const ConstructionGrid::Lines& lines : grid.lines)
            row.Put(lines.negative).Put(lines.positive).Put(lines.spacing).Put(lines.angle);
        row.Put(static_cast<int>(grid.length)).End();
    }

    const DocumentData& m_data;
    Database& m_database;
    int m_rows = 0; // written so far
};

[[noreturn]] void FailSaving() {
    throw FileError(std::string("Impossibile salvare il file: ") + std::strerror(errno) + ".");
}

// A file of its own name beside the target, removed again unless it was put in the target's place.
class Replacement {
  public:
    explicit Replacement(const std::string& target) : m_target(Resolved(target)) {
        const std::size_t slash = m_target.find_last_of('/');
        m_folder = slash == std::string::npos ? "." : m_target.substr(0, slash + 1);
        const std::string name = slash == std::string::npos ? m_target : m_target.substr(slash + 1);
        m_path = (slash == std::string::npos ? "" : m_folder) + "." + name + ".XXXXXX";
        m_file = mkstemp(m_path.data());
        if (m_file < 0)
            FailSaving();
    }
    ~Replacement() {
        if (m_file >= 0)
            close(m_file);
        if (!m_done)
            unlink(m_path.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    const std::string& Path() const { return m_path; }

    void Commit() {
        fchmod(m_file, Permissions());
        // The content must be on the disk before the name points to it, and the name before the user is told.
        if (fsync(m_file) != 0 || rename(m_path.c_str(), m_target.c_str()) != 0)
            FailSaving();
        m_done = true;
        const int folder = open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder >= 0) {
            fsync(folder);
            close(folder);
        }
    }

  private:
    // Through symbolic links, so that the link stays and its target is replaced.
    static std::string Resolved(const std::string& path) {
        char* real = realpath(path.c_str(), nullptr);
        const std::string resolved = real ? real : path;
        std::free(real);
        return resolved;
    }

    // Those of the file that is replaced, or of any new file.
    mode_t Permissions() const {
        struct stat old;
        if (stat(m_target.c_str(), &old) == 0)
            return old.st_mode & 07777;
        const mode_t mask = umask(0);
        umask(mask);
        return 0666 & ~mask;
    }

    std::string m_target, m_folder, m_path;
    int m_file = -1;
    bool m_done = false;
};

} // namespace

void SaveProject(const DocumentData& data, const std::string& path, const std::string& version) {
    Replacement file(path);
    {
        Database database(file.Path(), Database::Mode::WritePrivate);
        Writer(data, database).Write(version);
    }
    file.Commit();
}

} // namespace host
