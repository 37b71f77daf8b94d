// The engines' tests run against the real browsers, without a display.
#include "engine/BrowserSwitches.h"
#include "engine/WebEngineSetup.h"

#include <QApplication>
#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
// The built-in browser's library frees some of its own objects by a base class that does not know their size.
extern "C" const char *__asan_default_options()
{
    return "new_delete_type_mismatch=0";
}
#endif

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    prepareWebEngine(BrowserSwitches::ofUser({}));
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
