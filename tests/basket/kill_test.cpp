#include "basket/small_basket.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

class KillTest : public BasketTest
{
  protected:
    using Numbers = std::minstd_rand;

    // Adds, deletes and puts back lines without an end, and tells each. A line is called by the
    // number of its materials.
    [[noreturn]] void Work(Numbers Random, int Told)
    {
        LignesSupprimées Gone;
        for (;;) {
            const auto Count = Random() % 6;
            const Achats Materials(Count, Of("lin", "1", "2"));
            const auto Lines = LireLignes(TheStore.Open(File), {});
            const auto Deed = Random() % 8;
            if (!Gone.empty() && Deed % 2 == 0)
                RemettreLignes(TheStore.Open(File), std::exchange(Gone, {}));
            else if (Deed == 0)
                Gone = SupprimerCommande(TheStore.Open(File), std::to_string(Random() % 3));
            else if (Deed < 4 && !Lines.empty())
                Gone = SupprimerLigne(TheStore.Open(File), Lines[Random() % Lines.size()].Num);
            else
                Add(std::to_string(Random() % 3), std::to_string(Count), Materials);
            if (::write(Told, "+", 1) != 1)
                ::_exit(1);
        }
    }

    // Lets a process work for some deeds and a while, and kills it.
    void Kill(Numbers& Random)
    {
        int Ends[2];
        ASSERT_EQ(::pipe(Ends), 0);
        const Numbers Seed(Random());
        const pid_t Worker = ::fork();
        ASSERT_NE(Worker, -1);
        if (Worker == 0)
            Work(Seed, Ends[1]);
        ::close(Ends[1]);
        char Sign = 0;
        for (auto Deeds = 1 + Random() % 4; Deeds > 0; --Deeds)
            ASSERT_EQ(::read(Ends[0], &Sign, 1), 1) << "it ended by itself";
        ::usleep(static_cast<useconds_t>(Random() % 10'000));
        ::kill(Worker, SIGKILL);
        ::waitpid(Worker, nullptr, 0);
        ::close(Ends[0]);
    }
};

// A run of it is short; --gtest_repeat=400 kills some thousand times.
TEST_F(KillTest, ALineAndItsMaterialsAreWholeOrAbsent)
{
    Numbers Random(std::random_device{}());
    for (int Round = 0; Round < 12; ++Round) {
        Kill(Random);
        LireLignes(Store().Open(File), {}); // takes back what was half written, as the program does
        ASSERT_EQ(
            Cells("SELECT group_concat(Nom || ' holds ' || Held) FROM (SELECT Nom, "
                  "(SELECT count(*) FROM PanierMatériaux WHERE Ligne = PanierGlobal.Num) AS Held "
                  "FROM PanierGlobal) WHERE CAST(Nom AS INTEGER) <> Held"),
            "");
        ASSERT_EQ(Cells("SELECT count(*) FROM PanierMatériaux "
                        "WHERE Ligne NOT IN (SELECT Num FROM PanierGlobal)"),
                  "0");
        ASSERT_EQ(Cells("PRAGMA integrity_check"), "ok");
    }
}

} // namespace orvane
