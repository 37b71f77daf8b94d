// The parts of the program that stand in files of their own.
#include "util/ProgramParts.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
TEST(ProgramParts, WhatStandsBesideTheProgramIsFoundBeforeThereIsAnApplication)
{
    const QFileInfo self(QFileInfo(u"/proc/self/exe"_s).symLinkTarget());
    EXPECT_EQ(QFileInfo(cUtility::programPart(self.fileName())).canonicalFilePath(), self.canonicalFilePath());
}

TEST(ProgramParts, WhatIsNotThereHasNoPath)
{
    EXPECT_EQ(cUtility::programPart(u"no such part"_s), QString());
    EXPECT_EQ(cUtility::programPart(u"."_s), QString()) << "a folder is no part";
}
} // namespace
