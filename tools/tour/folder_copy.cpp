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
    fs::copy(Program, Path(), fs::copy_options::recursive);
}

} // namespace orvane::tour
