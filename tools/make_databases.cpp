// Makes the database files of a program folder from the tables under data/.
//   make_databases DATA FOLDER [--keep]
// --keep leaves Config.mdb and Panier.mdb alone when they are there: they hold the crafter's own
// settings and orders.

#include "databases/databases.h"

#include <iostream>
#include <string>
#include <vector>

int main(int Count, char** Arguments)
{
    const std::vector<std::string> Given(Arguments + 1, Arguments + Count);
    if (Given.size() < 2 || Given.size() > 3 || (Given.size() == 3 && Given[2] != "--keep")) {
        std::cerr << "usage: make_databases DATA FOLDER [--keep]\n";
        return 2;
    }
    try {
        orvane::tools::MakeDatabases(Given[0], Given[1], Given.size() == 3);
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << '\n';
        return 1;
    }
    return 0;
}
