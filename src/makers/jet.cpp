#include "makers/jet.h"

#include "base/failure.h"
#include "catalogue/maker.h"
#include "makers/isolated.h"
#include "makers/jet_content.h"
#include "makers/jet_schema.h"
#include "makers/replacement.h"
#include "store/sqlite_error.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <set>

namespace orvane {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds LeastPatience{30};
constexpr std::uintmax_t BytesInASecond = 200'000;

void Convert(std::string Bytes, const fs::path& Folder, const fs::path& Made)
{
    const JetContent Content = ReadJet(std::move(Bytes));
    const DatabaseDefinition Definition = DefinitionOf(Content, Folder);
    DatabaseMaker Maker(Made, Definition);
    for (std::size_t i = 0; i < Content.Tables.size(); ++i) {
        std::vector<std::string> Columns;
        for (const JetColumn& Column : Content.Tables[i].Columns)
            Columns.push_back(Column.Name);
        for (const std::vector<Value>& Row : Content.Tables[i].Rows)
            Maker.Insert(Definition.Tables[i], Columns, Row);
    }
    Maker.Finish();
}

std::string BytesOf(const fs::path& File)
{
    std::error_code Error;
    const auto Size = fs::file_size(File, Error);
    std::string Bytes(Error ? 0 : Size, '\0');
    std::ifstream Stream(File, std::ios::binary);
    if (Error || !Stream.read(Bytes.data(), static_cast<std::streamsize>(Size)))
        throw Failure(FailureKind::FileUnreadable, {});
    return Bytes;
}

// What the crafter is told of a failure in the making: of the file to convert, not of those that
// come and go beside it.
Failure AboutFile(const Failure& Given, const fs::path& File)
{
    using enum FailureKind;
    constexpr std::array OfFiles{FileUnreadable,   NotJet,   JetDamaged, JetProtected,
                                 DatabaseReadOnly, DiskFull, Store,      Program};
    const bool IsTold = std::ranges::find(OfFiles, Given.Kind()) != OfFiles.end();
    return {IsTold ? Given.Kind() : WriteFailed, DisplayName(File), Given.Cause()};
}

} // namespace

bool EstJet(const fs::path& Fichier)
{
    std::string Start(JetBeginning, ' ');
    std::ifstream(Fichier, std::ios::binary)
        .read(Start.data(), static_cast<std::streamsize>(Start.size()));
    return BeginsAsJet(Start);
}

std::vector<fs::path> FichiersJet(const fs::path& Dossier)
{
    std::vector<fs::path> Files{Dossier / ConfigFile, Dossier / PanierFile, Dossier / AlchimieFile};
    for (const std::string& Royaume : Royaumes())
        Files.push_back(Dossier / RoyaumeFile(Royaume));
    std::error_code Error;
    std::set<fs::path> Skins;
    for (const auto& Entry : fs::directory_iterator(Dossier / "Skins", Error))
        Skins.insert(Entry.path() / SkinFile(Entry.path().filename().string()));
    Files.insert(Files.end(), Skins.begin(), Skins.end());
    std::erase_if(Files, [](const fs::path& Each) { return !EstJet(Each); });
    return Files;
}

void ImporterJet(const fs::path& Fichier)
{
    try {
        std::string Bytes = BytesOf(Fichier);
        if (!BeginsAsJet(Bytes))
            throw Failure(FailureKind::NotJet, {});
        const fs::path Folder = fs::absolute(Fichier).parent_path();
        const PlaceBeside Beside(Fichier);
        const auto Patience = LeastPatience + std::chrono::seconds(Bytes.size() / BytesInASecond);
        RunIsolated([&] { Convert(std::move(Bytes), Folder, Beside.Successor()); }, Patience);
        Beside.Replace(".jet");
    } catch (const Failure& Given) {
        throw AboutFile(Given, Fichier);
    } catch (const std::exception& Given) {
        throw Failure(FailureKind::WriteFailed, DisplayName(Fichier), Given.what());
    }
}

} // namespace orvane
