#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}

namespace orvane {

// A file may come from anywhere: what stands in it is data. Its schema calls no function with
// effects and its SQL can't damage the file; no value is greater than any text of a catalogue.
void Distrust(SQLite::Database& Base);

// How much one query may do, in steps of SQLite's machine and bytes of its rows. No honest one
// comes near it; one that does fails, and the next begins anew.
class Allowance
{
  public:
    explicit Allowance(SQLite::Database& Base);
    Allowance(const Allowance&) = delete;
    Allowance& operator=(const Allowance&) = delete;

    void Renew() { Spent = 0; }

    // Whether this much is still allowed.
    bool Spend(std::int64_t Amount);

  private:
    std::int64_t Spent = 0;
};

} // namespace orvane
