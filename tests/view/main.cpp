#include "view/french.h"
#include "view/style.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int Count, char** Arguments)
{
    ::testing::InitGoogleTest(&Count, Arguments);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication Toolkit(Count, Arguments);
    QApplication::setStyle(new orvane::Style);
    orvane::InstallFrench(Toolkit);
    return RUN_ALL_TESTS();
}
