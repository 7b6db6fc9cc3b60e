#include "store/guard.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

namespace orvane {

namespace {

constexpr int GreatestValue = 1 << 20;
constexpr int StepsBetweenLooks = 10'000;
constexpr std::int64_t GreatestWork = 20'000'000;

} // namespace

void Distrust(SQLite::Database& Base)
{
    sqlite3* Handle = Base.getHandle();
    sqlite3_db_config(Handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(Handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(Handle, SQLITE_LIMIT_LENGTH, GreatestValue);
}

Allowance::Allowance(SQLite::Database& Base)
{
    const auto Look = [](void* Given) {
        return static_cast<Allowance*>(Given)->Spend(StepsBetweenLooks) ? 0 : 1;
    };
    sqlite3_progress_handler(Base.getHandle(), StepsBetweenLooks, Look, this);
}

bool Allowance::Spend(std::int64_t Amount)
{
    Spent += Amount;
    const bool Allowed = Spent <= GreatestWork;
    if (!Allowed)
        Renew(); // what follows the failure isn't its query any more
    return Allowed;
}

} // namespace orvane
