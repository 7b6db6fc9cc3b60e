#pragma once

#include <QTemporaryDir>

#include <filesystem>

namespace orvane::tour {

// A program folder to play with: databases are copied, everything else is linked. Gone at the end.
class FolderCopy
{
  public:
    explicit FolderCopy(const std::filesystem::path& Program);

    std::filesystem::path Path() const { return Folder.path().toStdString(); }

  private:
    QTemporaryDir Folder;
};

} // namespace orvane::tour
