// The commands of the manual lists over 100,000 and over 1,000,000 addresses, in the whole program without its windows:
// each beside its mark of a second for the shorter list, and how much longer the longer one takes. A tenfold list may
// take 12 times as long (n log n). Time is processor time, the best of three; TRAWLEX_BENCH_ITEMS gives another shorter
// length.
#include "app/QtEventPump.h"
#include "support/Outside.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {
constexpr double mark = 1000;
constexpr double growthMark = 12;

struct Desk : Outside
{
    explicit Desk(int length)
    {
        for (int i = 0; i < length; ++i)
            items.append(u"http://www.site%1.com/pages/%2.html"_s.arg(i % (length / 10)).arg(i));
        text = items.join("\r\n"_L1);
        if (!program.startUp.Form_Load())
            std::exit(1);
        program.form.frame.sstSearch.setTab(Tab::Manual);
    }
    [[nodiscard]] ListBox &list() { return program.form.lists.shown(); }
    void click(const char *name)
    {
        program.form.menus.mnuPopUpMN.prepare();
        auto *item = static_cast<MenuItem *>(program.form.control(QString::fromLatin1(name)));
        if (!item->isEnabled()) {
            std::fprintf(stderr, "bench: %s can not be chosen\n", name);
            std::exit(1);
        }
        item->click();
    }

    QtEventPump events;
    std::shared_ptr<FakeBrowser> browser = browsers.running = std::make_shared<FakeBrowser>(pump);
    Program program{ports(settings, events)};
    QStringList items;
    QString text;
};

/// A command: what the list holds before it, what the user answers, what is measured, how many items are then there.
struct Row
{
    const char *name;
    void (*prepare)(Desk &);
    const char *answer;
    void (*run)(Desk &);
    double left; ///< as a share of the items
};

void empty(Desk &desk)
{
    desk.list().clear();
}
void full(Desk &desk)
{
    desk.list().setItems(desk.items);
}
void saved(Desk &desk)
{
    full(desk);
    desk.click("mnuMNSaveToDatabase");
}
void unsaved(Desk &desk)
{
    saved(desk);
    desk.click("mnuMNDeleteSaved");
}
void selected(Desk &desk)
{
    full(desk);
    desk.list().setAllSelected(true);
    desk.list().setListIndex(0);
}

const Row rows[] = {
    {"paste", empty, "", [](Desk &d) { d.clipboard.held = d.text, d.click("mnuMNPasteLinks"); }, 1},
    {"drop", empty, "", [](Desk &d) { d.list().dropText(d.text); }, 1},
    {"load a file", empty, "", [](Desk &d) { d.program.manual.files.loadFile(d.folder.filePath(u"list.txt"_s)); }, 1},
    {"load the links of a page", empty, "", [](Desk &d) { d.click("mnuMNLoadLinksIE"); }, 1},
    {"the same, a tenth passes a filter", empty, "",
     [](Desk &d) {
         d.program.form.urlFilter.cboMNMCMNCFilter.setText(u"7.html"_s);
         d.program.form.urlFilter.cboMNMCMNC.setListIndex(1);
         d.click("mnuMNLoadLinksIE");
     },
     0.1},
    {"save to a file", full, "", [](Desk &d) { d.click("mnuMNSaveAsFile"); }, 1},
    {"save to the database", unsaved, "", [](Desk &d) { d.click("mnuMNSaveToDatabase"); }, 1},
    {"save there again", saved, "", [](Desk &d) { d.click("mnuMNSaveToDatabase"); }, 1},
    {"load from the database", empty, "", [](Desk &d) { d.click("mnuMNLoadLinksDB"); }, 1},
    {"find the last one", full, "@last", [](Desk &d) { d.click("mnuMNFind(0)"); }, 1},
    {"find what is not there", full, "zzzzzzzzzz", [](Desk &d) { d.click("mnuMNFind(0)"); }, 1},
    {"select all", full, "", [](Desk &d) { d.click("mnuMNSelectAll"); }, 1},
    {"copy all", selected, "", [](Desk &d) { d.click("mnuMNCopySelected"); }, 1},
    {"cut all", selected, "", [](Desk &d) { d.click("mnuMNCutSelected"); }, 0},
    {"clear all selected", selected, "", [](Desk &d) { d.click("mnuMNClearSelected"); }, 0},
    {"repeats", full, "", [](Desk &d) { d.click("mnuMNRem(0)"); }, 1},
    {"protocol", full, "", [](Desk &d) { d.click("mnuMNRem(1)"); }, 1},
    {"left side at", full, "/pages/", [](Desk &d) { d.click("mnuMNRem(2)"); }, 1},
    {"right side at", full, ".HTML", [](Desk &d) { d.click("mnuMNRem(3)"); }, 1},
    {"items containing", full, "7.HTML", [](Desk &d) { d.click("mnuMNRem(4)"); }, 0.9},
    {"items not containing", full, "7.HTML", [](Desk &d) { d.click("mnuMNRem(5)"); }, 0.1},
    {"unique servers", full, "", [](Desk &d) { d.click("mnuMNUniqueServersOnly"); }, 0.1},
    {"reduce to server", full, "", [](Desk &d) { d.click("mnuMNReduceToServer"); }, 0.1},
    {"delete what is saved", saved, "", [](Desk &d) { d.click("mnuMNDeleteSaved"); }, 1},
};

double milliseconds(Desk &desk, const Row &row)
{
    row.prepare(desk);
    desk.program.form.urlFilter.cboMNMCMNC.setListIndex(0);
    const QString answer = QString::fromLatin1(row.answer);
    desk.dialogs.inputAnswers = {answer == "@last"_L1 ? desk.items.constLast() : answer};
    const std::clock_t start = std::clock();
    row.run(desk);
    const double time = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
    if (desk.list().listCount() != qRound(row.left * double(desk.items.size()))) {
        std::fprintf(stderr, "bench: %s leaves %d items\n", row.name, desk.list().listCount());
        std::exit(1);
    }
    return time;
}

double bestOfThree(Desk &desk, const Row &row)
{
    return std::min({milliseconds(desk, row), milliseconds(desk, row), milliseconds(desk, row)});
}

/// Files and page that the commands take their items from.
void furnish(Desk &desk)
{
    QFile file(desk.folder.filePath(u"list.txt"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(desk.text.toUtf8()) < 0)
        std::exit(1);
    desk.dialogs.fileAnswer = desk.folder.filePath(u"saved.txt"_s);
    const QString address = u"http://www.page.com/"_s;
    desk.browser->pages[address].links = desk.items;
    desk.browser->show(address);
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    bool wanted = false;
    const int given = qEnvironmentVariableIntValue("TRAWLEX_BENCH_ITEMS", &wanted);
    const int length = wanted ? given : 100'000;
    Desk small(length), large(length * 10);
    furnish(small);
    furnish(large);
    std::printf("| %-34s | %9d | %9d | growth |\n", "ms for so many items", length, length * 10);
    for (const Row &row : rows) {
        const double one = bestOfThree(small, row);
        const double ten = bestOfThree(large, row);
        const bool met = one <= mark && ten / one <= growthMark;
        std::printf("| %-34s | %9.1f | %9.1f | %6.1f | %s\n", row.name, one, ten, ten / one, met ? "met" : "MISSED");
    }
    return 0;
}
