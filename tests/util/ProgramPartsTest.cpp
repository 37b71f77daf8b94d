// The parts of the program that stand in files of their own.
#include "util/ProgramParts.h"

#include "util/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
TEST(ProgramParts, WhatStandsBesideTheProgramIsFoundBeforeThereIsAnApplication)
{
    const QFileInfo self(QFileInfo(u"/proc/self/exe"_s).symLinkTarget());
    EXPECT_EQ(QFileInfo(cUtility::programPart(self.fileName())).canonicalFilePath(), self.canonicalFilePath());
}

TEST(ProgramParts, LieWhereTheyAreInstalled)
{
    const QTemporaryDir prefix;
    const QString bin = prefix.filePath(u"" TRAWLEX_BIN_DIR ""_s);
    const QString parts = prefix.filePath(u"" TRAWLEX_PARTS_DIR ""_s);
    ASSERT_TRUE(QDir().mkpath(bin) && QDir().mkpath(parts));
    QFile part(parts + "/part"_L1);
    ASSERT_TRUE(part.open(QIODevice::WriteOnly));
    EXPECT_EQ(cUtility::programPart(u"part"_s, bin), part.fileName());
}

TEST(ProgramParts, WhatIsNotThereIsToldWithThePlaces)
{
    try {
        FAIL() << cUtility::programPart(u"part"_s, u"/none/bin"_s).toStdString();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
        const QString installed = QDir::cleanPath(
            u"/none/bin/"_s + QDir(u"/" TRAWLEX_BIN_DIR ""_s).relativeFilePath(u"/" TRAWLEX_PARTS_DIR ""_s));
        EXPECT_EQ(error.description().toStdString(),
                  "part is not installed: it is neither in /none/bin nor in " + installed.toStdString() + ".");
    }
}

TEST(ProgramParts, OneThatCannotBeLoadedIsToldByName)
{
    const QString self = QFileInfo(QFileInfo(u"/proc/self/exe"_s).symLinkTarget()).fileName();
    try {
        std::ignore = cUtility::functionOfPart(self, "main");
        FAIL() << "a program is no library";
    } catch (const RuntimeError &error) {
        EXPECT_TRUE(error.description().startsWith(self + u": "_s)) << error.description().toStdString();
    }
}

TEST(ProgramParts, AFolderIsNone)
{
    EXPECT_THROW(std::ignore = cUtility::programPart(u"."_s), RuntimeError);
}
} // namespace
