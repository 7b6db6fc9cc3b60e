#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace SQLite {
class Database;
}

namespace orvane::scenario {

// What happens to the program's folder behind the program's back, and what is stored in it.
class ProgramFolder
{
  public:
    explicit ProgramFolder(std::filesystem::path Path);
    ~ProgramFolder();

    const std::filesystem::path& Path() const { return ThePath; }

    // Plain SQL, as another tool would send it.
    void Change(const std::string& File, const std::string& Sql);

    // A file, or a folder, that is away for a while.
    void Lose(const std::string& File);
    void GiveBack(const std::string& File);

    // Locked by another program.
    void Lock(const std::string& File);
    void Unlock(const std::string& File);

    void Write(const std::string& File, const std::string& Content);

    // "Panier.mdb/PanierGlobal où Nb > 1 (Nom, Nb)": cells divided by |, rows by /. CannotGoOn.
    std::string Stored(const std::string& What) const;

  private:
    std::filesystem::path ThePath;
    std::map<std::string, std::unique_ptr<SQLite::Database>> Locks;
};

} // namespace orvane::scenario
