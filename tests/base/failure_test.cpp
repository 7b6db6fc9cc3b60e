#include "base/failure.h"

#include <gtest/gtest.h>

namespace orvane {

TEST(Failure, EveryKindHasAFrenchSentenceThatNamesItsSubject)
{
    for (int Kind = 0; Kind <= static_cast<int>(FailureKind::Program); ++Kind) {
        const std::string Sentence = Failure(static_cast<FailureKind>(Kind), "Épée").Sentence();
        EXPECT_NE(Sentence.find("«\u00A0Épée\u00A0»"), std::string::npos) << Sentence;
        EXPECT_TRUE(Sentence.ends_with('.')) << Sentence;
        EXPECT_EQ(Sentence.find(" :"), std::string::npos) << "plain space before a colon";
        EXPECT_EQ(Sentence.find('\''), std::string::npos) << "straight apostrophe: " << Sentence;
    }
    EXPECT_EQ(Failure(FailureKind::ChoiceMissing, "").Sentence(),
              "Il faut d’abord faire le choix précédent.");
    EXPECT_EQ(Failure(FailureKind::WrongText, "« 3 » : x").Sentence(),
              "«\u00A0« 3 » : x\u00A0» n’est pas un nombre.")
        << "a subject is shown as it is";
}

TEST(Failure, TheCauseIsForTheTechnicalTextOnly)
{
    const Failure Given(FailureKind::Store, "Panier.mdb", "disk I/O error");
    EXPECT_STREQ(Given.what(), "Panier.mdb: disk I/O error");
    EXPECT_EQ(Given.Sentence().find("disk"), std::string::npos);
}

} // namespace orvane
