// A settings file that was edited by hand or damaged never keeps the program from starting.
#include "app/IniSettings.h"
#include "app/SettingKeys.h"
#include "support/ProgramFixture.h"
#include "util/RandomText.h"
#include "window/WindowPlaces.h"
#include "window/options/OptionTable.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
const QString appName = u"(trawlex - ann)\\.opt"_s;

/// What commands keep beside the options.
constexpr QLatin1StringView commandKeys[] = {
    Keys::Editor,      Keys::BrowserProgram, Keys::KeepOnTop, Keys::FileOfUrls,  Keys::ItemsContaining,
    Keys::LeftSideAt,  Keys::RightSideAt,    Keys::FindItem,  Keys::AutoIncrPos, Keys::Elongate,
    Keys::UseAutoBase, Keys::UrlFilter,      Keys::LinkList,  Keys::PageList,    Keys::LastImportDir};

class SettingsFaults : public ProgramTest
{
  protected:
    SettingsFaults() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path()); }

    /// Starts as the window does, looks at what was loaded and ends as the user does.
    void startOn(SettingsStore &store)
    {
        ends = 0;
        program = std::make_unique<Program>(ports(store, pump));
        QObject::connect(&program->lifeCycle, &LifeCycle::ended, &program->form, [this] { ++ends; });
        ASSERT_TRUE(program->startUp.Form_Load());
        program->startUp.settle();
        expectUsable();
        program->lifeCycle.end();
        EXPECT_EQ(ends, 1);
        program.reset();
    }
    void expectUsable()
    {
        EXPECT_TRUE(form().mbFormReady && form().mbMainShown && form().browser.mbInitialized);
        EXPECT_TRUE(form().autoRun.cmdANStart.isEnabled());
        EXPECT_TRUE(place.screen().intersects(place.place()));
        for (const Control *control : form().findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
            if (const auto *box = qobject_cast<const NumberBox *>(control)) {
                EXPECT_EQ(box->text().size(), box->digits()) << box->name().toStdString();
            }
            if (const auto *list = qobject_cast<const ListControl *>(control)) {
                EXPECT_LT(list->listIndex(), list->listCount()) << list->name().toStdString();
            }
        }
    }
    /// The settings file of a folder of its own, so that nothing of another round is remembered.
    QString newFile()
    {
        const QString config = home.filePath(QString::number(++files));
        EXPECT_TRUE(QDir().mkpath(config + u"/trawlex"_s));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config);
        return config + u"/trawlex/trawlex.ini"_s;
    }
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// A file as a long use leaves it. The folders stay the program's own, lest a cut path leads out of it.
    QByteArray usedFile()
    {
        const QString path = newFile();
        {
            IniSettings store(appName);
            for (const OptionRow &row : optionRows())
                store.SaveSetting(Sections::Main, row.key, row.byDefault.isEmpty() ? u"<b>, \"ä\""_s : row.byDefault);
            for (const QLatin1StringView key : commandKeys)
                store.SaveSetting(Sections::Main, key, u"1"_s);
            startOn(store);
        }
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir home;
    RandomText random{1311};
    int files = 0;
};

/// Damages a file here and there: bytes turned, cut out, doubled, and pieces that mean something to its readers.
void damage(QByteArray &content, RandomText &random)
{
    static const QList<QByteArray> pieces{"=",
                                          "[",
                                          "]\n",
                                          "\n",
                                          "\"",
                                          "\\x",
                                          ", ",
                                          "@Invalid()",
                                          "%U00ff",
                                          "-1",
                                          "nan",
                                          "1e400",
                                          "[General]\n",
                                          QByteArray("\0", 1),
                                          "@Variant(\\0\\0\\0\\x7f\\xff)",
                                          "@ByteArray(",
                                          "@Rect(1 2)",
                                          QByteArray(5000, '9'),
                                          "\xff\xfe",
                                          "\xc3"};
    for (int left = random.number(1, 12); left > 0 && !content.isEmpty(); --left) {
        const int at = random.number(0, int(content.size()) - 1);
        switch (random.number(0, 3)) {
        case 0:
            content[at] = char(random.number(0, 255));
            break;
        case 1:
            content.remove(at, random.number(1, 60));
            break;
        case 2:
            content.insert(at, content.mid(random.number(0, int(content.size()) - 1), 80));
            break;
        default:
            content.insert(at, pieces[random.number(0, int(pieces.size()) - 1)]);
        }
    }
}
} // namespace

TEST_F(SettingsFaults, RandomBytesInTheFileNeverKeepTheProgramFromStarting)
{
    const QByteArray good = usedFile();
    ASSERT_GT(good.size(), 1000);
    for (int round = 0; round < 40; ++round) {
        QByteArray content = good;
        damage(content, random);
        write(newFile(), content);
        IniSettings store(appName);
        SCOPED_TRACE("round " + std::to_string(round));
        startOn(store);
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(SettingsFaults, NeitherDoesAFileThatIsNone)
{
    const QList<QByteArray> contents{{},
                                     QByteArray(20000, '\0'),
                                     QByteArray("SQLite format 3\0\x10", 18),
                                     "<html><body>settings</body></html>",
                                     QByteArray(200000, '['),
                                     "[(trawlex - ann)]\n.opt\\SecFrmSearch\\chkSaveUrl"};
    for (const QByteArray &content : contents) {
        write(newFile(), content);
        IniSettings store(appName);
        SCOPED_TRACE(content.left(20).toStdString());
        startOn(store);
    }
}

TEST_F(SettingsFaults, NeitherDoesAFolderInThePlaceOfTheFile)
{
    const QString path = newFile();
    ASSERT_TRUE(QDir().mkpath(path));
    IniSettings store(appName);
    startOn(store);
}

TEST_F(SettingsFaults, NoValueOfAnyKeyKeepsTheProgramFromStarting)
{
    const QStringList values{{},
                             u" "_s,
                             u"-1"_s,
                             u"2"_s,
                             u"3"_s,
                             u"99"_s,
                             u"007"_s,
                             u"1e400"_s,
                             u"nan"_s,
                             u"True"_s,
                             u"yes"_s,
                             u"4294967296"_s,
                             u"\r\n"_s,
                             u"'"_s,
                             u"%00"_s,
                             u"../.."_s,
                             u"٣"_s,
                             QString(70000, u'9'),
                             u","_s,
                             QString(QChar(0xD800)),
                             QString(QChar(0)),
                             u"<b>"_s};
    for (int round = 0; round < 40; ++round) {
        settings.values.clear();
        for (const OptionRow &row : optionRows())
            settings.values.insert(u"SecFrmSearch/"_s + row.key,
                                   random.oneIn(4) ? random.oneOf(values) : row.byDefault);
        for (const QLatin1StringView key : commandKeys)
            settings.values.insert(u"SecFrmSearch/"_s + key, random.oneOf(values));
        for (const char *key : {"NSWE_W", "NSWE_H", "NSWE_L", "NSWE_T"})
            settings.values.insert(u"frmSearch/"_s + QLatin1StringView(key), random.oneOf(values));
        for (const QLatin1StringView list : {"A"_L1, "C"_L1})
            settings.values.insert(u"SecFrmSearch/"_s + Keys::AutoTextUrl + list, random.oneOf(values));
        SCOPED_TRACE("round " + std::to_string(round));
        startOn(settings);
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(SettingsFaults, FoldersAndNamesThatLeadNowhereGiveWayToTheProgramsOwn)
{
    for (const auto &dir : {u"/nowhere/"_s, u""_s, u"/dev/null/"_s, u"\\"_s, u"/"_s + QString(5000, u'x') + u'/'}) {
        for (const auto &name : {u"."_s, u".."_s, u"gone/x.mdb"_s, u"a'b.mdb"_s, u""_s}) {
            settings.values.clear();
            settings.preset("SearchKeyTxtSaveLocation Text", dir);
            settings.preset("txtFNSaveLocation", dir);
            settings.values.insert(u"mStartUp/DatabaseName"_s, name);
            SCOPED_TRACE(dir.left(20).toStdString() + " " + name.toStdString());
            startOn(settings);
            EXPECT_EQ(settings.of("SearchKeyTxtSaveLocation Text"), folder.path() + u'/');
        }
    }
}

TEST_F(SettingsFaults, CommasThatWereTypedWithoutQuotationMarksStayCommas)
{
    write(newFile(), "[(trawlex - ann)]\n.opt\\SecFrmSearch\\txtSBSelAreaCodes=212,415\n");
    const IniSettings store(appName);
    EXPECT_EQ(store.GetSetting(Sections::Main, Keys::AreaCodes), u"212,415"_s);
}

TEST_F(SettingsFaults, ASizeThatNoWindowCanHaveIsPassedOver)
{
    for (const auto &size : {u"1e300"_s, u"inf"_s, u"nan"_s, u"-600"_s, u"0"_s, u"5"_s, u"wide"_s, u"9999999999"_s}) {
        settings.values.insert(u"frmSearch/NSWE_W"_s, size);
        settings.values.insert(u"frmSearch/NSWE_H"_s, u"6000"_s);
        EXPECT_EQ(storedSize(settings, u"frmSearch"_s, {452, 640}), QSize(452, 400)) << size.toStdString();
    }
}
