#pragma once

#include "store/store.h"
#include "support/expect_fails.h"
#include "support/temp_folder.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace orvane {

// A store over real files in a folder of its own. Files come from plain SQL, as another tool would
// make them.
class StoreTest : public testing::Test
{
  protected:
    // Runs plain SQL on a file, made when it isn't there.
    std::filesystem::path Raw(std::string_view Name, const std::string& Sql) const
    {
        const auto File = Folder / Name;
        SQLite::Database(File.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(Sql);
        return File;
    }

    // The first cell of a plain query, through a connection of its own.
    std::string RawCell(std::string_view Name, const std::string& Sql) const
    {
        SQLite::Database Base((Folder / Name).string());
        return Base.execAndGet(Sql).getString();
    }

    // One column of all rows of a query, joined: "a|b|c".
    std::string Walk(const Database& Base, std::string_view Sql, std::string_view Column) const
    {
        std::string Result;
        for (Recordset Rows = Base.OpenRecordset(Sql); !Rows.Eof(); Rows.MoveNext())
            Result += Rows.TextOrEmpty(Column) + "|";
        return Result.substr(0, Result.empty() ? 0 : Result.size() - 1);
    }

    std::string Walk(const std::filesystem::path& File, std::string_view Sql,
                     std::string_view Column)
    {
        return Walk(TheStore.Open(File), Sql, Column);
    }

    // Changes one cell of the present row.
    static void Put(Recordset& Rows, std::string_view Column, const std::string& Text)
    {
        Rows.Edit();
        Rows.Set(Column, Text);
        Rows.Update();
    }

    TempFolder Folder;
    Store TheStore;
};

} // namespace orvane
