// Runs the tests of the store, or, started again by one of them, the part of the other process.
#include "OtherProcess.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    if (const auto status = runAsOtherProcess(QCoreApplication::arguments()))
        return *status;
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
