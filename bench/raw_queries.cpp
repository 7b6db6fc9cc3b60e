#include "raw_queries.h"

#include <sqlite3.h>
#include <stdexcept>

namespace orvane::bench {

RawQueries::RawQueries(const std::string& File)
{
    if (sqlite3_open_v2(File.c_str(), &Base, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(Base));
}

RawQueries::~RawQueries()
{
    for (const Query& Each : Queries)
        sqlite3_finalize(Each.Statement);
    sqlite3_close(Base);
}

void RawQueries::Add(const std::string& Sql, std::vector<std::string> Parameters)
{
    sqlite3_stmt* Statement = nullptr;
    if (sqlite3_prepare_v2(Base, Sql.c_str(), -1, &Statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(Base));
    Queries.push_back({Statement, std::move(Parameters)});
}

std::size_t RawQueries::Run()
{
    std::size_t Bytes = 0;
    for (const Query& Each : Queries) {
        int At = 0;
        for (const std::string& Parameter : Each.Parameters)
            sqlite3_bind_text(Each.Statement, ++At, Parameter.data(),
                              static_cast<int>(Parameter.size()), SQLITE_STATIC);
        while (sqlite3_step(Each.Statement) == SQLITE_ROW)
            for (int i = 0; i < sqlite3_column_count(Each.Statement); ++i)
                if (sqlite3_column_text(Each.Statement, i) != nullptr)
                    Bytes += static_cast<std::size_t>(sqlite3_column_bytes(Each.Statement, i));
        sqlite3_reset(Each.Statement);
    }
    return Bytes;
}

} // namespace orvane::bench
