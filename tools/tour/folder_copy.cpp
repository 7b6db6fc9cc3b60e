#include "tour/folder_copy.h"

#include "tour/names.h"

namespace fs = std::filesystem;

namespace orvane::tour {

FolderCopy::FolderCopy(const fs::path& Program)
{
    if (!Folder.isValid())
        throw Because(Folder.errorString());
    if (!fs::exists(Program / "Config.mdb"))
        throw Because(QStringLiteral("%1 is no program folder: no Config.mdb in it")
                          .arg(QString::fromStdString(Program.string())));
    const fs::path Source = fs::canonical(Program);
    for (const auto& Entry : fs::recursive_directory_iterator(Source)) {
        const fs::path Target = Path() / fs::relative(Entry.path(), Source);
        if (Entry.is_directory())
            fs::create_directories(Target);
        else if (Entry.path().extension() == ".mdb")
            fs::copy_file(Entry.path(), Target);
        else
            fs::create_symlink(Entry.path(), Target);
    }
}

} // namespace orvane::tour
