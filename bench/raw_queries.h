#pragma once

#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace orvane::bench {

// The floor: queries prepared once on one open file and sent through SQLite's own interface, every
// column of every row read.
class RawQueries
{
  public:
    explicit RawQueries(const std::string& File);
    ~RawQueries();
    RawQueries(const RawQueries&) = delete;
    RawQueries& operator=(const RawQueries&) = delete;

    void Add(const std::string& Sql, std::vector<std::string> Parameters);
    std::size_t Run(); // the number of bytes read

  private:
    struct Query
    {
        sqlite3_stmt* Statement;
        std::vector<std::string> Parameters;
    };

    sqlite3* Base = nullptr;
    std::vector<Query> Queries;
};

} // namespace orvane::bench
