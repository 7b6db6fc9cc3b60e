#include "view/french.h"

#include <QCoreApplication>
#include <QLocale>

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

namespace orvane {

TEST(French, IsTheLocaleOfTheToolkit)
{
    EXPECT_EQ(QLocale().language(), QLocale::French);
    EXPECT_EQ(QLocale().toString(1.5), "1,5");
}

TEST(French, LeavesTheCoresNumericFormatsAlone)
{
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    char Text[16];
    std::snprintf(Text, sizeof Text, "%.1f", 1.5);
    EXPECT_STREQ(Text, "1.5");
}

TEST(French, IsWhatTheToolkitsBoxesSpeak)
{
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Annuler");
    EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Paste").remove(u'&'), "Coller");
}

} // namespace orvane
