#pragma once

#include <filesystem>
#include <string>

namespace orvane {

// A folder beside a file in which its successor is made, gone with this object. What a run that was
// killed left in it goes first.
class PlaceBeside
{
  public:
    // Failure (FailureKind::WriteFailed).
    explicit PlaceBeside(std::filesystem::path File);
    PlaceBeside(const PlaceBeside&) = delete;
    PlaceBeside& operator=(const PlaceBeside&) = delete;
    ~PlaceBeside();

    // Where the successor is made.
    std::filesystem::path Successor() const;

    // Puts the successor in the file's place and keeps the file under its name with Mark before the
    // ending; under the first name with Mark and a number when another file bears that one. Either
    // the file or the successor stands in the place at any moment. Failure
    // (FailureKind::WriteFailed) leaves it as it was.
    void Replace(const std::string& Mark) const;

  private:
    std::filesystem::path File;
    std::filesystem::path Folder;
};

} // namespace orvane
