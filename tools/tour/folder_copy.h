#pragma once

#include <QTemporaryDir>

#include <filesystem>

namespace orvane::tour {

// A program folder to play with. Links would not do: pictures lie in the folder itself.
class FolderCopy
{
  public:
    explicit FolderCopy(const std::filesystem::path& Program);

    std::filesystem::path Path() const { return Folder.path().toStdString(); }

  private:
    QTemporaryDir Folder;
};

} // namespace orvane::tour
