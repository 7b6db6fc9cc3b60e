#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane {

// A folder of its own for one test, gone with it.
class TempFolder
{
  public:
    TempFolder()
    {
        std::string Pattern = (std::filesystem::temp_directory_path() / "orvane-XXXXXX").string();
        if (::mkdtemp(Pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        Folder = Pattern;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder()
    {
        std::error_code Error;
        std::filesystem::remove_all(Folder, Error);
    }

    const std::filesystem::path& Path() const { return Folder; }
    std::filesystem::path operator/(std::string_view Name) const { return Folder / Name; }

    // A file of that content, its folders included.
    std::filesystem::path Write(std::string_view Name, std::string_view Content) const
    {
        const auto File = Folder / Name;
        std::filesystem::create_directories(File.parent_path());
        std::ofstream(File, std::ios::binary) << Content;
        return File;
    }

  private:
    std::filesystem::path Folder;
};

} // namespace orvane
