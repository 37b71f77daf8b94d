// The text core, measured against two marks of the same run and the same pages: S, one search for a character that does
// not occur, and L, one lower-casing. Prints a table of the ratios behind the benchmarks' own lines.
#ifdef TRAWLEX_HYPERSCAN
#include "HyperscanSet.h"
#endif
#include "TextCorpus.h"
#include "pages/Addresses.h"
#include "pages/AreaCodes.h"
#include "pages/EmailFinder.h"
#include "pages/PageTexts.h"
#include "pages/PhoneFinder.h"
#include "pages/TagContent.h"
#include "util/Arrays.h"
#include "util/Incr.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <iterator>
#include <map>
#include <thread>

using namespace Qt::StringLiterals;

namespace {
constexpr char absentUnit = 0x01;
constexpr int listSize = 100000;
constexpr int fewTexts = 40;
constexpr int manyTexts = 80; // for several scanners

using PageWork = void (*)(const QString &page);

/// `work` on every page of the corpus, once per iteration.
void overPages(benchmark::State &state, PageWork work)
{
    const QStringList &pages = corpusPages();
    for (auto _ : state)
        for (const QString &page : pages)
            work(page);
}

void searchOnce(const QString &page)
{
    benchmark::DoNotOptimize(page.indexOf(QChar(char16_t(0xFFFE))));
}

void lowerOnce(const QString &page)
{
    benchmark::DoNotOptimize(page.toLower());
}

void collectEmail(const QString &page)
{
    benchmark::DoNotOptimize(cIEText::CollectEmail(page, u"@", nullptr));
}

void findPhones(const QString &page)
{
    benchmark::DoNotOptimize(cAreaCode::FindPhoneNumbers(page, {}, false));
}

void findFaxes(const QString &page)
{
    benchmark::DoNotOptimize(cAreaCode::FindPhoneNumbers(page, {}, true));
}

/// The described method: every code of the table is looked for in the whole page.
void scanForEachCode(const QString &page)
{
    for (const AreaCodeRow &row : areaCodeRows)
        for (const QStringView code : row.codes.split(u','))
            for (qsizetype at = page.indexOf(code); at >= 0; at = page.indexOf(code, at + 1))
                benchmark::DoNotOptimize(at);
}

/// Texts that no page holds, so that each look reads all of it.
QStringList missingTexts(int count, int firstNumber)
{
    QStringList texts;
    for (int number = firstNumber; texts.size() < count; ++number)
        if (const QString text = absentTexts(1, number).constFirst(); !standsInAPage(text) && !texts.contains(text))
            texts += text;
    return texts;
}

/// The sets are kept from page to page, as a run keeps them.
void screen(const QString &page, const TextSet &wanted, const TextSet &unwanted)
{
    const Screening must = mustContain(page, wanted, Demand::Any);
    const Screening mustNot = mustNotContain(page, unwanted);
    if (must.decidedBy >= 0 || mustNot.decidedBy >= 0)
        qFatal("a text of the benchmark stands in a page");
}

void screenForFew(const QString &page)
{
    static const TextSet wanted(missingTexts(fewTexts, 0), Qt::CaseInsensitive);
    static const TextSet unwanted(missingTexts(fewTexts, 1000), Qt::CaseInsensitive);
    screen(page, wanted, unwanted);
}

void screenForMany(const QString &page)
{
    static const TextSet wanted(missingTexts(manyTexts, 0), Qt::CaseInsensitive);
    static const TextSet unwanted(missingTexts(manyTexts, 1000), Qt::CaseInsensitive);
    screen(page, wanted, unwanted);
}

/// One list alone, of as many texts as two scanners take.
void lookForMany(const QString &page)
{
    static const TextSet wanted(missingTexts(manyTexts, 0), Qt::CaseInsensitive);
    if (mustContain(page, wanted, Demand::Any).decidedBy >= 0)
        qFatal("a text of the benchmark stands in a page");
}

#ifdef TRAWLEX_HYPERSCAN
/// The look of screenForFew.
void hyperscanForFew(QByteArrayView bytes, HyperscanSet::Encoding encoding)
{
    const auto setOf = [encoding](int firstNumber) {
        return HyperscanSet(missingTexts(fewTexts, firstNumber), encoding);
    };
    static std::map<HyperscanSet::Encoding, std::pair<HyperscanSet, HyperscanSet>> all;
    auto sets = all.find(encoding);
    if (sets == all.end())
        sets = all.emplace(encoding, std::pair(setOf(0), setOf(1000))).first;
    if (sets->second.first.anyIn(bytes) || sets->second.second.anyIn(bytes))
        qFatal("a text of the benchmark stands in a page");
}

void hyperscanUtf16(const QString &page)
{
    hyperscanForFew(HyperscanSet::bytesOf(page), HyperscanSet::Encoding::Utf16);
}

void hyperscanUtf8(const QString &page)
{
    hyperscanForFew(page.toUtf8(), HyperscanSet::Encoding::Utf8);
}

/// Without the way from UTF-16, which a page comes in.
void hyperscanUtf8Alone(const QString &page)
{
    static QHash<const QChar *, QByteArray> converted;
    QByteArray &bytes = converted[page.constData()];
    if (bytes.isEmpty())
        bytes = page.toUtf8();
    hyperscanForFew(bytes, HyperscanSet::Encoding::Utf8);
}
#endif

void cutSegment(const QString &page)
{
    benchmark::DoNotOptimize(GetStringSegment(page, u"<no such tag>", u"</no such tag>"));
}

void tagContents(const QString &page)
{
    benchmark::DoNotOptimize(cIEText::Get_HtmlTag_Content(u"<p>", u"</p>", page, nullptr));
}

struct PageRow
{
    const char *name;
    PageWork work;
    double aimInS; // 0: none
};

constexpr PageRow pageRows[] = {
    {"S: one search", searchOnce, 0},
    {"L: one lower-casing", lowerOnce, 0},
    {"CollectEmail", collectEmail, 5},
    {"FindPhoneNumbers, all codes", findPhones, 12},
    {"FindPhoneNumbers, fax only", findFaxes, 0},
    {"a scan for each code", scanForEachCode, 0},
    {"must and must not contain, 40 texts each", screenForFew, 3.5},
    {"must and must not contain, 80 texts each", screenForMany, 0},
    {"must contain, 80 texts", lookForMany, 5},
#ifdef TRAWLEX_HYPERSCAN
    {"Hyperscan, 40 texts each, over UTF-16", hyperscanUtf16, 0},
    {"Hyperscan, 40 texts each, made UTF-8 first", hyperscanUtf8, 0},
    {"Hyperscan, 40 texts each, over UTF-8 alone", hyperscanUtf8Alone, 0},
#endif
    {"GetStringSegment, tags missing", cutSegment, 0},
    {"Get_HtmlTag_Content", tagContents, 0},
};

using ListWork = QStringList (*)(const QStringList &list);

/// `work` on lists of a tenth, a half and all of the addresses, so that the growth can be seen.
void overList(benchmark::State &state, ListWork work)
{
    const QStringList list = madeUpAddresses(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(work(list));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

QStringList filterBy1000(const QStringList &list)
{
    static const QStringList filters = absentTexts(1000, 0);
    return cUtility::FilterArray(list, filters);
}

QStringList servers(const QStringList &list)
{
    for (const QString &address : list)
        benchmark::DoNotOptimize(cIEText::GetServerFromUrl(address, cIEText::hostOnly));
    return {};
}

QStringList kinds(const QStringList &list)
{
    for (const QString &address : list)
        benchmark::DoNotOptimize(cIEText::IsThisEmailOrLink(address, true));
    return {};
}

QStringList unescaped(const QStringList &list)
{
    for (const QString &address : list)
        benchmark::DoNotOptimize(cIEText::HexToDec(address));
    return {};
}

QStringList increments(const QStringList &list)
{
    for (const QString &address : list)
        benchmark::DoNotOptimize(cUtility::Incr(address, 4, false, 1, {}, u"1", {}, true));
    return {};
}

struct ListRow
{
    const char *name;
    ListWork work;
    double mostSeconds; // for the whole list
};

constexpr ListRow listRows[] = {
    {"GetUniqueServers", cIEText::GetUniqueServers, 1},
    {"RemoveRepeatsFromArray", cUtility::RemoveRepeatsFromArray, 1},
    {"FilterArray, 1000 filters", filterBy1000, 1},
    {"GetServerFromUrl", servers, 0.1},
    {"IsThisEmailOrLink", kinds, 0},
    {"HexToDec", unescaped, 0},
    {"Incr, mode 4", increments, 0},
};

/// Keeps the best processor time of each benchmark, in seconds, beside printing it: other programs on the machine slow
/// the clock on the wall, and little else.
class Collector : public benchmark::ConsoleReporter
{
  public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const double seconds = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            double &best =
                times.try_emplace(run.run_name.function_name + "/" + run.run_name.args, seconds).first->second;
            best = std::min(best, seconds);
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
};

const char *verdict(double value, double aim)
{
    return aim <= 0 ? "" : value <= aim ? "met" : "MISSED";
}

void printPageTable(const std::map<std::string, double> &times)
{
    const auto timeOf = [&](const char *name) { return times.at(std::string(name) + "/"); };
    const double search = timeOf(pageRows[0].name);
    const double lower = timeOf(pageRows[1].name);
    qsizetype units = 0;
    for (const QString &page : corpusPages())
        units += page.size();
    std::printf("\n%s: %lld pages, %.1f million units; %u cores\n\n", qPrintable(corpusName()),
                static_cast<long long>(corpusPages().size()), double(units) / 1e6, std::thread::hardware_concurrency());
    std::printf("| Over all pages | ms | S | L | aim | |\n|---|---|---|---|---|---|\n");
    for (const PageRow &row : pageRows) {
        const double time = timeOf(row.name);
        std::printf("| %s | %.3f | %.2f | %.3f | %s | %s |\n", row.name, time * 1e3, time / search, time / lower,
                    row.aimInS > 0 ? QString::number(row.aimInS).append(u" S"_s).toUtf8().constData() : "",
                    verdict(time / search, row.aimInS));
    }
    std::printf("\nFindPhoneNumbers against a scan for each code: %.0f times faster (aim 100)\n",
                timeOf("a scan for each code") / timeOf("FindPhoneNumbers, all codes"));
#ifdef TRAWLEX_HYPERSCAN
    const double own = timeOf("must and must not contain, 40 texts each");
    std::printf("must and must not contain, 40 texts each, against Hyperscan over UTF-16: %.2f of its time; made UTF-8 "
                "first: %.2f; over UTF-8 alone: %.2f\n",
                own / timeOf("Hyperscan, 40 texts each, over UTF-16"),
                own / timeOf("Hyperscan, 40 texts each, made UTF-8 first"),
                own / timeOf("Hyperscan, 40 texts each, over UTF-8 alone"));
#else
    std::printf("Hyperscan was not there when this was built (libhyperscan-dev): no figures beside it\n");
#endif
}

void printListTable(const std::map<std::string, double> &times)
{
    std::printf("\n| Over %d addresses | ms | ns an address | at a tenth | aim | |\n|---|---|---|---|---|---|\n",
                listSize);
    for (const ListRow &row : listRows) {
        const double time = times.at(std::string(row.name) + "/" + std::to_string(listSize));
        const double tenth = times.at(std::string(row.name) + "/" + std::to_string(listSize / 10));
        std::printf("| %s | %.2f | %.0f | %.0f | %s | %s |\n", row.name, time * 1e3, time * 1e9 / listSize,
                    tenth * 1e10 / listSize,
                    row.mostSeconds > 0 ? (std::to_string(int(row.mostSeconds * 1e3)) + " ms").c_str() : "",
                    verdict(time, row.mostSeconds));
    }
}
} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    for (const PageRow &row : pageRows)
        benchmark::RegisterBenchmark(row.name, overPages, row.work)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(0.2)
            ->Repetitions(5);
    for (const ListRow &row : listRows)
        benchmark::RegisterBenchmark(row.name, overList, row.work)
            ->Unit(benchmark::kMillisecond)
            ->Arg(listSize / 10)
            ->Arg(listSize)
            ->MinTime(0.2)
            ->Repetitions(3);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    if (collector.times.size() == std::size(pageRows) + 2 * std::size(listRows)) { // all of them ran
        printPageTable(collector.times);
        printListTable(collector.times);
    }
    return 0;
}
