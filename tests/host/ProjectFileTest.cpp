// Project files: nothing is lost, nothing half-read, nothing hostile taken.
#include "host/files/ProjectFile.h"
#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/ProjectSchema.h"
#include "host/files/Sqlite.h"
#include "model/entity/Materiale.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const fs::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

class ProjectFileTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "progetto_XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
        m_file = m_folder / "prova 100%? #1.asg"; // what an address would take for something else
        BuildEverything(m_document);
    }
    void TearDown() override { fs::remove_all(m_folder); }

    void Save() { SaveProject(m_document.Data(), m_file.string(), "1.2.3"); }
    std::string Loaded() { return Dump(LoadProject(m_file.string())); }

    // The message of the refusal; "" when the file was taken.
    std::string Refusal() {
        try {
            LoadProject(m_file.string());
            return "";
        } catch (const FileError& error) {
            return error.what();
        }
    }

    // The refusal of a saved project after the statements have run on it.
    std::string RefusalAfter(const char* sql) {
        Save();
        {
            host::Database database(m_file.string(), host::Database::Mode::WritePrivate);
            sqlite3_limit(database.Handle(), SQLITE_LIMIT_LENGTH, 100 << 20); // a hostile file keeps to no limit
            database.Execute("PRAGMA writable_schema = ON");
            database.Execute(sql);
        }
        return Refusal();
    }

    fs::path m_folder, m_file;
    HostDocument m_document;
};

// Every field, in full precision, accents included; counters restart above the highest number.
TEST_F(ProjectFileTest, RoundTripIsExact) {
    Save();
    const std::string first = Loaded();
    EXPECT_EQ(first, Dump(m_document.Data()));
    m_document.Replace(LoadProject(m_file.string()));
    EXPECT_EQ(m_document.Data().Info().title, "Prova: perché no?"_t);
    EXPECT_FALSE(m_document.IsModified());
    Save();
    EXPECT_EQ(Loaded(), first);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder), {}), 1) << "no file is left beside the project";
    HostDocument empty;
    SaveProject(empty.Data(), m_file.string(), "1.2.3");
    EXPECT_EQ(Loaded(), Dump(empty.Data()));
}

// Every format that ever was opens, with what its file says, and the next save keeps it. Catches a format that was
// raised without a reader for the files of the one before, or without keeping one.
TEST_F(ProjectFileTest, EveryFormatOpens) {
    const char* const contents[] = {
        "Edificio a due piani: 18 26 4 2 4 2 1 1 2 3 1, 28 carichi, nodo 7 a (0, 0, 3.2), griglia 10 x 10",
        "Edificio a due piani: 18 26 4 2 4 2 1 1 2 3 1, 28 carichi, nodo 7 a (0, 0, 3.2), griglia 2 x 1",
    };
    static_assert(std::size(contents) == projectFormat, "a format lacks its file");
    for (int format = 1; format <= projectFormat; ++format) {
        const fs::path kept =
            fs::path(QUOVAR_SOURCE_DIR) / "tests/host/files" / ("formato-" + std::to_string(format) + ".asg");
        ASSERT_EQ(host::Database(kept.string(), host::Database::Mode::ReadUntrusted).Pragma("user_version"), format);
        const DocumentData data = LoadProject(kept.string());
        std::string found = data.Info().title.ToUtf8() + ":";
        int loads = 0;
        for (const Kind kind : allKinds) {
            found += " " + std::to_string(data.Size(kind));
            for (int i = 0; i < data.Size(kind); ++i)
                if (auto* carrier = dynamic_cast<CElementoCarico*>(data.At(kind, i)))
                    loads += carrier->GetSizeCarichi();
        }
        CString rest;
        const CFPoint& place = *data.FindAs<CNodo>(Kind::Node, 7)->GetPunto();
        rest.Format(", %d carichi, nodo 7 a (%g, %g, %g), griglia %d x %d", loads, place.x, place.y, place.z,
                    data.Grid().lines[0].positive, data.Grid().lines[1].positive);
        EXPECT_EQ(found + rest.ToUtf8(), contents[format - 1]);
        SaveProject(data, m_file.string(), "1.2.3");
        EXPECT_EQ(Loaded(), Dump(data)) << format;
    }
}

// Catches limits of the reader that a model passes by being shown in another unit, or by its own settings.
TEST_F(ProjectFileTest, WhatIsSavedCanBeRead) {
    m_document.MoveNodes({{m_document.GetIndexNodo(0), CFPoint(-1e12, 0, 1e12)}});
    m_document.SetTolerance(1e7);
    m_document.ChangeUnits(Lunghezza::Millimetres, Forza::Newton);
    Save();
    EXPECT_EQ(Loaded(), Dump(m_document.Data()));
}

// A project that could not be read again is not written, and the old file stays.
TEST_F(ProjectFileTest, WhatCannotBeReadIsNotSaved) {
    Save();
    const std::string before = Bytes(m_file);
    m_document.Data().Info().notes = CString(std::string((1 << 20) + 1, 'n'));
    EXPECT_THROW(Save(), FileError);
    m_document.Data().Info().notes = "";
    m_document.Data().As<CMateriale>(Kind::Material, 0)->SetE(1e307);
    m_document.ChangeUnits(Lunghezza::Metres, Forza::Newton);
    EXPECT_FALSE(std::isfinite(m_document.Data().As<CMateriale>(Kind::Material, 0)->GetE()));
    EXPECT_THROW(Save(), FileError);
    EXPECT_EQ(Bytes(m_file), before);
}

TEST_F(ProjectFileTest, SavingKeepsLinksAndPermissions) {
    Save();
    fs::permissions(m_file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const fs::path link = m_folder / "collegamento.asg";
    fs::create_symlink(m_file, link);
    SaveProject(m_document.Data(), link.string(), "1.2.3");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(m_file).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_THROW(SaveProject(m_document.Data(), (m_folder / "nessuna" / "a.asg").string(), "1"), FileError);
    EXPECT_THROW(LoadProject((m_folder / "manca.asg").string()), FileError);
    EXPECT_THROW(LoadProject(m_folder.string()), FileError);
}

// A copy that stopped half-way: refused, and never the cause of a crash.
TEST_F(ProjectFileTest, EveryTruncationIsRefused) {
    Save();
    const std::string whole = Bytes(m_file);
    for (std::size_t size = 0; size < whole.size(); size += size < 1024 ? 16 : 509) {
        Write(m_file, std::string_view(whole).substr(0, size));
        EXPECT_NE(Refusal(), "") << size << " of " << whole.size();
    }
    Write(m_file, "Questo non è un progetto, ma un testo qualunque abbastanza lungo da non essere vuoto.");
    EXPECT_EQ(Refusal(), "Il file non è un progetto.");
}

// Damaged bytes are refused or give some whole document; run under the sanitizers this also catches wild reads.
TEST_F(ProjectFileTest, FlippedBitsNeverCrash) {
    Save();
    const std::string whole = Bytes(m_file);
    std::mt19937 random(12345);
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        std::string damaged = whole;
        for (int i = 0; i <= round % 8; ++i)
            damaged[random() % damaged.size()] ^= static_cast<char>(1u << random() % 8);
        Write(m_file, damaged);
        refused += Refusal() != "";
    }
    EXPECT_GT(refused, 0);
}

// Each thing that a hand-made file could say and a document cannot be, with where it stands.
TEST_F(ProjectFileTest, HostileContentIsRefusedWithItsPlace) {
    const char* const stranger = "Il progetto contiene tabelle o dati estranei.";
    const char* const otherNodes = "Le tabelle del progetto non sono quelle attese (nodi).";
    const std::pair<const char*, const char*> cases[] = {
        {"UPDATE travi SET nodo2 = nodo1 WHERE pos = 2", "Tabella travi, riga 2: i due nodi sono lo stesso nodo."},
        {"UPDATE travi SET nodo2 = 9999 WHERE pos = 3",
         "Tabella travi, riga 3: si riferisce al numero 9999, che non esiste."},
        {"UPDATE travi SET materiale = 50 WHERE pos = 1",
         "Tabella travi, riga 1: si riferisce al numero 50, che non esiste."},
        {"UPDATE nodi SET x = 9e999 WHERE pos = 4", "Tabella nodi, riga 4: atteso un numero finito."},
        {"UPDATE nodi SET y = 1e13 WHERE pos = 4", "Tabella nodi, riga 4: le coordinate del nodo sono troppo grandi."},
        {"UPDATE nodi SET x = 'abc' WHERE pos = 1", "Tabella nodi, riga 1: atteso un numero."},
        {"UPDATE nodi SET id = 'abc' WHERE pos = 1", "Tabella nodi, riga 1: atteso un numero intero."},
        {"UPDATE nodi SET id = 1 WHERE pos = 2", "Tabella nodi, riga 2: il numero 1 è già usato."},
        {"UPDATE nodi SET id = -7 WHERE pos = 2", "Tabella nodi, riga 2: il numero -7 non è ammesso."},
        {"UPDATE nodi SET id = 99999999999 WHERE pos = 2",
         "Tabella nodi, riga 2: il numero 99999999999 non è ammesso."},
        {"UPDATE nodi SET vincolo = 64 WHERE pos = 1", "Tabella nodi, riga 1: il numero 64 non è ammesso."},
        {"UPDATE casi SET nome = x'00ff' WHERE pos = 1", "Tabella casi, riga 1: atteso un testo."},
        {"UPDATE casi SET nome = 'SLU' WHERE pos = 1", "Tabella combinazioni, riga 1: il nome \"SLU\" è già usato."},
        {"UPDATE combinazioni SET id = 1", "Tabella combinazioni, riga 1: il numero 1 è già usato."},
        {"UPDATE fattori SET caso = combinazione WHERE pos = 1",
         "Tabella fattori, riga 1: si riferisce al numero 3, che non esiste."},
        {"DELETE FROM vertici WHERE pos = 2", "Tabella vertici, riga 2: la riga manca o è ripetuta."},
        {"DELETE FROM vertici WHERE pos > 20", "Tabella vertici: l'elemento 4 ha meno di tre vertici."},
        {"DELETE FROM molle", "Il progetto è incompleto: mancano delle righe."},
        {"UPDATE vertici SET nodo = 1 WHERE pos IN (1, 2)", "Tabella vertici, riga 2: il vertice è ripetuto."},
        {"UPDATE vertici SET genere = 1 WHERE pos = 1", "Tabella vertici, riga 1: solo setti e solai hanno vertici."},
        {"UPDATE carichi SET genere = 99 WHERE pos = 1", "Tabella carichi, riga 1: il genere del carico non è valido."},
        {"UPDATE carichi_elementi SET carico = 77 WHERE pos = 1",
         "Tabella carichi_elementi, riga 1: si riferisce a un carico che non esiste."},
        {"INSERT INTO gruppi_elementi SELECT NULL, gruppo, genere, elemento FROM gruppi_elementi LIMIT 1",
         "Tabella gruppi_elementi, riga 10: l'elemento è già nel gruppo."},
        {"DELETE FROM progetto", "Tabella progetto, riga 1: mancano i dati del progetto."},
        {"DELETE FROM griglia", "Tabella griglia, riga 1: mancano i dati della griglia."},
        {"UPDATE griglia SET piano = 3", "Tabella griglia, riga 1: il numero 3 non è ammesso."},
        {"UPDATE griglia SET angolo1 = 80, angolo2 = -10", "Tabella griglia, riga 1: la griglia non è valida."},
        {"UPDATE progetto SET lunghezza = 9", "Tabella progetto, riga 1: il numero 9 non è ammesso."},
        {"UPDATE progetto SET caso = 55", "Tabella progetto: il caso di carico corrente non esiste."},
        {"PRAGMA user_version = 3", "Il progetto è stato salvato da una versione più recente del programma."},
        {"PRAGMA application_id = 5", "Il file non è un progetto."},
        {"CREATE TRIGGER t AFTER INSERT ON nodi BEGIN DELETE FROM travi; END", stranger},
        {"CREATE VIEW v AS SELECT 1", stranger},
        {"CREATE INDEX i ON nodi(x)", stranger},
        {"DROP TABLE nodi; CREATE VIEW nodi AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
         "SELECT i AS pos, i AS id, 0.0 AS x, 0.0 AS y, 0.0 AS z, 0 AS vincolo, 1 AS visibile FROM n",
         otherNodes},
        {"ALTER TABLE nodi ADD COLUMN w REAL GENERATED ALWAYS AS (x) VIRTUAL", otherNodes},
        {"UPDATE materiali SET nome = replace(hex(zeroblob(1100000)), '0', 'a') WHERE pos = 1",
         "Il file contiene un dato troppo grande."},
        // The message stays fit for a box.
        {"UPDATE casi SET nome = printf('%.*c', 100000, 'n')",
         "Tabella casi, riga 2: il nome \"nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn...\" è già "
         "usato."},
        // Each one is compared with those before it: without a bound a short file keeps the reader busy for minutes.
        {"WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n WHERE i < 1100) INSERT INTO svincoli "
         "SELECT i, genere, elemento, 1000 + i, 0, 0, 0, 0, 0 FROM svincoli, n WHERE pos = 1",
         "Tabella svincoli, riga 1001: la linea ha troppi svincoli."},
    };
    for (const auto& [sql, message] : cases)
        EXPECT_EQ(RefusalAfter(sql), message) << sql;
}

// Killed at any moment of saving, the file is the old project or the new one. The processes die for real.
TEST_F(ProjectFileTest, KilledWhileSavingTheFileIsOldOrNew) {
    Save();
    const std::string before = Loaded();
    m_document.GenNodiLineare({0, 0, 50}, {1, 0, 50}, 0.01, 3000);
    const std::string after = Dump(m_document.Data());
    int seenOld = 0;
    for (int round = 0; round < 40; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            try {
                Save();
            } catch (const FileError&) {
            }
            _exit(0);
        }
        usleep(static_cast<useconds_t>(round * round * 40));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        const std::string now = Loaded();
        ASSERT_TRUE(now == before || now == after) << round;
        seenOld += now == before;
        if (now == after)
            break;
    }
    EXPECT_GT(seenOld, 0) << "no child was killed in time: the test has not tested";
}

} // namespace
