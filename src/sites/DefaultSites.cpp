#include "sites/DefaultSites.h"

#include "pages/LinkStages.h"
#include "store/Schema.h"
#include "store/Transaction.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;

struct Site
{
    QLatin1StringView name, url, contains, begin, end, firstLink, lastLink, containsNot, convertHex;
};

// clang-format off
constexpr Site sites[DefaultSites::count] = {
    {"Msn Search"_L1, "search.msn.com"_L1, {}, {}, {}, "SEARCH_CONC"_L1, "shopping.msn.com"_L1, "msn"_L1, "0"_L1},
    {"Google Search"_L1, "www.google.com"_L1, "216.239."_L1, "J:"_L1, "+"_L1, {}, {}, {}, "1"_L1},
    {"Altavista Search"_L1, "www.altavista.com"_L1, "?ck_sm="_L1, "&r="_L1, {}, {}, {}, {}, "1"_L1},
    {"Yahoo Search"_L1, "search.yahoo.com"_L1, "H=0/*-"_L1, "H=0/*-"_L1, {}, {}, {}, "NW=1"_L1, "0"_L1},
    {"AlltheWeb.com"_L1, "www.alltheweb.com"_L1, "http"_L1, "&r="_L1, {}, {}, {}, {}, "1"_L1},
    {"About Search"_L1, "search.about.com"_L1, "?zi=3"_L1, "MK&zu="_L1, {}, {}, {}, {}, "1"_L1},
    {"DMOZ"_L1, "search.dmoz.org"_L1, {}, {}, {}, {}, {}, "dmoz"_L1, {}},
    {"TrueSearch"_L1, "www.truesearch.com"_L1, {}, {}, {}, {}, {}, "truesearch"_L1, {}},
    {"iLOR Search"_L1, "www.ilor.com"_L1, "id=&u="_L1, "u=http://"_L1, {}, {}, {}, {}, {}},
    {"MSN Member Directory"_L1, "members.msn.com"_L1, "mpp="_L1, {}, {}, {}, {}, "email"_L1, {}},
    {"Yahoo! Member Directory"_L1, "members.yahoo.com"_L1, "profiles"_L1, {}, {}, {}, {}, {}, {}},
    {"Simtel.Net"_L1, "www.simtel.net"_L1, "sekid="_L1, {}, {}, {}, {}, {}, {}},
    {"Monster Com"_L1, "jobsearch.monster.com"_L1, "JobID="_L1, {}, {}, {}, {}, {}, {}},
    {"CareerBuilder"_L1, "www.careerbuilder.com"_L1, "JobDetails.aspx?"_L1, {}, {}, {}, {}, {}, {}},
    {"Job.com"_L1, "www.job.com"_L1, "viewjob.cfm"_L1, {}, {}, {}, {}, {}, {}},
    {"Computer Jobs"_L1, "www.computerjobs.com"_L1, "job_display.aspx"_L1, {}, {}, {}, {}, "LoadFeaturedJob"_L1, {}},
    {"Computer Work"_L1, "www.computerwork.com"_L1, "job_id="_L1, {}, {}, {}, {}, {}, {}},
    {"TechJobsOnline.com"_L1, "www.techjobsonline.com"_L1, "JobDetails.asp?"_L1, {}, {}, {}, {}, {}, {}},
    {"search.wanadoo.fr"_L1, "search.wanadoo.fr"_L1, "click.jsp"_L1, "DEST="_L1, {}, {}, {}, "%"_L1, {}},
    {"InfoSeek Japan"_L1, "www.infoseek.co.jp"_L1, "=OW&"_L1, "related:"_L1, "&sv"_L1, {}, {}, "st="_L1, "1"_L1},
    {"arianna.libero.it"_L1, "arianna.libero.it"_L1, "search_siti"_L1, "/http://"_L1, {}, {}, {}, {}, {}},
    {"BUSCApique.com"_L1, "www.buscapique.com"_L1, "?n="_L1, "url="_L1, {}, {}, {}, {}, "1"_L1},
    {"Match.com"_L1, "www.match.com"_L1, "lid=18"_L1, {}, {}, {}, {}, "sec="_L1, {}},
    {"www.lavalife.com"_L1, "www.lavalife.com"_L1, "fullprofile.jsp"_L1, {}, {}, {}, {}, "seq="_L1, {}},
    {"Pozitiveliving.com"_L1, "www.pozitiveliving.com"_L1, "profile.asp"_L1, {}, {}, {}, {}, {}, {}},
    {"DataDate"_L1, "www.datadate.com"_L1, "st=4&dnav"_L1, {}, {}, {}, {}, {}, {}},
};

/// The groups by rows: the last row of each run, and its group.
struct GroupRun
{
    int lastRow, group;
};
constexpr GroupRun groupRuns[] = {{4, 0}, {10, 1}, {11, 0}, {17, 2}, {21, 3}, {25, 4}};
// clang-format on

QString groupOf(int row)
{
    const auto *run = std::find_if(std::begin(groupRuns), std::end(groupRuns),
                                   [row](const GroupRun &candidate) { return row <= candidate.lastRow; });
    return QString::number(run->group);
}

/// A default text hits where it stands exactly once.
QString countedOnce(const QString &text)
{
    return text.isEmpty() ? text : JoinSD(text, 1);
}
} // namespace

QStringList DefaultSites::GetSiteData(int row)
{
    return guardedResult(mLog, {module, "Function GetSiteData"_L1}, QStringList(), [&](QStringList &data) {
        if (row < 0 || row >= count)
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
        const Site &site = sites[row];
        data = {site.name,     site.url,         site.contains,
                site.begin,    site.end,         site.firstLink,
                site.lastLink, site.containsNot, site.convertHex.isEmpty() ? "0"_L1 : site.convertHex};
    });
}

bool DefaultSites::IsDefaultSDLoaded()
{
    return guardedResult(mLog, {module, "Function IsDefaultSDLoaded"_L1}, false, [&](bool &loaded) {
        loaded = !mDatabase->GetRecordset(u"SELECT TOP 1 SiteName FROM SearchSites"_s).isEmpty();
    });
}

bool DefaultSites::AddDefaultSSData()
{
    return guardedResult(mLog, {module, "Sub AddDefaultSSData"_L1}, false, [&](bool &done) {
        Transaction transaction(*mDatabase);
        static_cast<void>(mDatabase->GetRecordset(u"DELETE * FROM SearchSites"_s));
        Recordset records = mDatabase->GetRecordset(u"SELECT * FROM SearchSites"_s);
        for (int row = 0; row < count; ++row) {
            const QStringList data = GetSiteData(row);
            const std::pair<QLatin1StringView, QString> values[] = {
                {"Date"_L1, QDate::currentDate().toString(Qt::ISODate)},
                {"SiteName"_L1, data[0]},
                {"CnvHex"_L1, data[8]},
                {"Group"_L1, groupOf(row)},
                {"Url-1"_L1, data[1]},
                {"BeginUrl-1"_L1, data[3]},
                {"EndUrl-1"_L1, data[4]},
                {"UrlMC-1"_L1, countedOnce(data[2])},
                {"UrlMNC-1"_L1, countedOnce(data[7])},
                {"BUrlCol-1"_L1, data[5]},
                {"EUrlCol-1"_L1, data[6]}};
            records.AddNew();
            for (const auto &[field, value] : values)
                records.Fields()[field].setValue(value);
            records.Update();
        }
        done = transaction.commit();
    });
}

bool DefaultSites::SSExists(QString address)
{
    return guardedResult(mLog, {module, "Function SSExists"_L1}, false, [&](bool &exists) {
        address.remove(u'\'');
        exists = !mDatabase->GetRecordset(u"SELECT * FROM SiteSummary WHERE Url='%1'"_s.arg(address)).isEmpty();
    });
}
