#include "player/model_folder.h"

#include "catalogue/catalogue.h"
#include "catalogue/maker.h"
#include "databases/databases.h"
#include "home/feuilles.h"
#include "skins/skin_assets.h"

#include <fstream>

namespace orvane {

namespace fs = std::filesystem;

namespace {

// As much of a picture as the core looks at: its beginning and its end.
void Touch(const fs::path& File)
{
    using namespace std::string_view_literals;
    fs::create_directories(File.parent_path());
    std::ofstream(File, std::ios::binary) << "GIF8\0;"sv;
}

// Two resolutions, but frm_Configuration and frm_Panier have one layout for both.
void MakeSkin(const fs::path& Folder)
{
    const std::vector<std::string> Resolutions{"1024x768", "800x600"};
    fs::create_directories(Folder);
    DatabaseMaker Maker(Folder / (Folder.filename().string() + ".mdb"), SkinDefinition());
    for (const std::string& Feuille : NomsFeuilles()) {
        const bool IsCommon = Feuille == "frm_Configuration" || Feuille == "frm_Panier";
        Maker.Insert(SkinDefinition().Tables[0], {"Nom", "Commun"},
                     {Feuille, std::string(IsCommon ? "O" : "N")});
        for (const std::string& Resolution :
             IsCommon ? std::vector<std::string>{"Commun"} : Resolutions) {
            const TableDefinition Table = LayoutTable(Feuille + "_" + Resolution);
            Maker.AddTable(Table);
            Maker.Insert(Table, {"Num", "NomControl"}, {std::int64_t{1}, Feuille});
        }
    }
    Maker.Finish();
    for (const std::string Of : {"Commun", "1024x768", "800x600"})
        for (const std::string& File : ImagesDeSkin())
            Touch(Folder / Of / File);
}

} // namespace

void MakeModelFolder(const fs::path& Tables, const fs::path& Folder)
{
    tools::MakeDatabases(Tables, Folder, false);
    fs::copy(Tables / "Objets", Folder / "Objets", fs::copy_options::recursive);
    for (const std::string& Royaume : Royaumes()) {
        for (const std::string& Stem :
             {"Ecu" + Royaume, "Ecu" + Royaume + "Ombre", "Bannière" + Royaume, "Bouton" + Royaume})
            Touch(Folder / "Interface" / (Stem + ".gif"));
        Touch(Folder / "Interface/Icônes" / (Royaume + ".ico"));
    }
    Touch(Folder / "Interface/Logo.png");
    for (const auto& [Stem, Count] :
         {std::pair{"CouleurCraft", 7}, {"CraftPetit", 11}, {"CraftGrand", 11}})
        for (int i = 1; i <= Count; ++i)
            Touch(Folder / "Interface/Listes" / (Stem + std::to_string(i) + ".png"));
    for (const std::string Skin : {"Parchemin", "Forge nocturne"})
        MakeSkin(Folder / "Skins" / Skin);
}

void CopyModelFolder(const fs::path& Model, const fs::path& Copy)
{
    for (const auto& Entry : fs::recursive_directory_iterator(Model)) {
        const fs::path Target = Copy / Entry.path().lexically_relative(Model);
        if (Entry.is_directory())
            fs::create_directories(Target);
        else if (Target.extension() == ".mdb")
            fs::copy_file(Entry.path(), Target);
        else
            fs::create_hard_link(Entry.path(), Target);
    }
}

} // namespace orvane
