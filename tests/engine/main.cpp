// The engines' tests run against the real browsers, without a display.
#include "engine/BrowserSwitches.h"
#include "engine/WebEngineSetup.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    prepareWebEngine(BrowserSwitches::ofUser({}));
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
