#include "sites/SiteCount.h"

#include "app/OptionNumbers.h"
#include "pages/LinkStages.h"
#include "util/AddressList.h"
#include "util/Arrays.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int typingPause = 150;
constexpr qsizetype linksInTip = 12;
constexpr qsizetype unitsInTip = 60, unitsAtEnd = 18;

/// A stage that would leave nothing is left out, as in a run.
QStringList unlessEmpty(const QStringList &kept, const QStringList &before)
{
    return firstOf(kept).isEmpty() ? before : kept;
}

QStringList counted(const QStringList &links, const QStringList &texts, LinkStages::Keeping keeping)
{
    QStringList kept;
    LinkStages::countedTexts(links, texts, keeping, kept);
    return unlessEmpty(kept, links);
}

bool standsInList(const ComboBox &box)
{
    const QStringList &items = box.items();
    return std::any_of(items.begin(), items.end(),
                       [&](const QString &item) { return cUtility::equalIgnoringCase(item, box.text()); });
}

/// A link as a line of a tip, which is no wider than the window beside which it stands.
QString elided(const QString &link)
{
    return link.size() <= unitsInTip ? link : link.left(unitsInTip - unitsAtEnd - 1) + u'…' + link.right(unitsAtEnd);
}

QString tipOf(const QStringList &links)
{
    if (firstOf(links).isEmpty())
        return u"No links"_s;
    QStringList shown;
    for (const QString &link : links.mid(0, linksInTip))
        shown.append(elided(link));
    if (links.size() > linksInTip)
        shown.append(u"and %1 more: a click shows all"_s.arg(links.size() - linksInTip));
    return shown.join(u'\n');
}
} // namespace

SiteCount::SiteCount(const Context &context, const WindowFrame &frame, SiteEditor &editor, const OptionBoxes &options,
                     const RunFlags &runs, BrowserHolder &browser, SiteRecords &records)
    : mContext(context), mFrame(frame), mEditor(editor), mOptions(options), mRuns(runs), mBrowser(browser),
      mRecords(records)
{
    mSoon.setSingleShot(true);
    mSoon.setInterval(typingPause);
    connect(&mSoon, &QTimer::timeout, this, &SiteCount::show);
    connect(&browser, &BrowserHolder::loadingEnded, this, &SiteCount::pageChanged);
    for (const TabControl *tabs : {&frame.sstSearch, &frame.sstSettings, &frame.sstMiscOptions})
        connect(tabs, &TabControl::Click, this, &SiteCount::pageChanged);
    for (int box = editor.cboSD.first(); box <= editor.cboSD.last(); ++box)
        connect(&editor.cboSD(box), &ComboBox::changed, this, &SiteCount::changed);
    for (const NumberBox *number : {&editor.incSDMCMNC(0), &editor.incSDMCMNC(1), &editor.incSDUrlLen})
        connect(number, &NumberBox::changed, this, &SiteCount::changed);
    for (int figure = 0; figure < figures; ++figure) {
        connect(&editor.lblSDCount(figure + 1), &Label::mousePressed, this, [this, figure] {
            const QStringList &left = mLeft[static_cast<std::size_t>(figure)];
            if (!firstOf(left).isEmpty())
                Q_EMIT linksAsked(left);
        });
    }
    connect(&editor.cboSDLen, &ComboBox::Click, this, &SiteCount::changed);
    connect(&editor.chkSDHex, &CheckBox::Click, this, &SiteCount::changed);
}

std::array<QStringList, SiteCount::figures> SiteCount::stagesOf(const QStringList &links, const Values &values)
{
    std::array<QStringList, figures> left;
    left[0] = links;
    if (firstOf(links).isEmpty()) {
        left.fill(links);
        return left;
    }
    left[1] = unlessEmpty(LinkStages::startStop(links, values.firstLink, values.lastLink), links);
    const QStringList resolved = values.convertHex ? LinkStages::cnvHex(left[1]) : left[1];
    left[2] = unlessEmpty(LinkStages::minMax(resolved, values.length), resolved);
    left[3] = counted(left[2], values.contains, LinkStages::Keeping::Containing);
    left[4] = counted(left[3], values.containsNot, LinkStages::Keeping::NotContaining);
    left[5] = cUtility::RemoveRepeatsFromArray(
        unlessEmpty(LinkStages::beginEndUrl(left[4], values.begin, values.end), left[4]));
    return left;
}

bool SiteCount::isShown() const
{
    return mFrame.sstSearch.tab() == Tab::Settings && mFrame.sstSettings.tab() == Tab::Misc &&
           mFrame.sstMiscOptions.tab() == Tab::Sites;
}

void SiteCount::pageChanged()
{
    mLinksOutdated = true;
    changed();
}

void SiteCount::changed()
{
    if (isShown())
        mSoon.start();
}

bool SiteCount::hasRecord() const
{
    return standsInList(mEditor.cboSD(1));
}

/// The stored values of the chosen record's field, and the one that is being typed.
QStringList SiteCount::family(SiteField field, int box)
{
    const ComboBox &combo = mEditor.cboSD(box);
    const QString typed = combo.text();
    QStringList values = hasRecord() ? mRecords.GetSearchSiteData(mEditor.cboSD(1).text(), field) : emptyList();
    if (typed.isEmpty() || standsInList(combo))
        return values;
    if (firstOf(values).isEmpty())
        values.clear();
    if (field == SiteField::UrlMC || field == SiteField::UrlMNC)
        values.append(JoinSD(typed, mEditor.incSDMCMNC(field == SiteField::UrlMC ? 0 : 1).value()));
    else
        values.append(typed);
    return values;
}

/// A record keeps the length that it was made with, whatever its boxes show afterwards.
QString SiteCount::length()
{
    if (hasRecord())
        return firstOf(mRecords.GetSearchSiteData(mEditor.cboSD(1).text(), SiteField::UrlLen));
    if (mEditor.cboSDLen.listIndex() < 0 || mEditor.incSDUrlLen.value() < 1)
        return {};
    return JoinSD(QString::number(mEditor.cboSDLen.listIndex()), mEditor.incSDUrlLen.value());
}

SiteCount::Values SiteCount::values()
{
    Values values;
    values.begin = family(SiteField::BeginUrl, 3);
    values.end = family(SiteField::EndUrl, 4);
    values.contains = family(SiteField::UrlMC, 5);
    values.containsNot = family(SiteField::UrlMNC, 6);
    values.firstLink = family(SiteField::BUrlCol, 7);
    values.lastLink = family(SiteField::EUrlCol, 8);
    values.length = length();
    values.convertHex = mEditor.chkSDHex.value() == 1 || mOptions.chkSMA(SMA::ConvertHex).value() == 1;
    return values;
}

/// Only while the editor is on show and nothing runs: the page of a run belongs to the run.
void SiteCount::show()
{
    if (!isShown() || !mRuns.idle() || !mBrowser.isSet())
        return;
    guarded(mContext.log, {"SiteCount"_L1, "Sub show"_L1}, [&] {
        if (std::exchange(mLinksOutdated, false))
            mLinks = mBrowser->GetLinksOnWebPage();
        mLeft = stagesOf(mLinks, values());
        for (int figure = 0; figure < figures; ++figure) {
            const QStringList &left = mLeft[static_cast<std::size_t>(figure)];
            Label &label = mEditor.lblSDCount(figure + 1);
            label.setCaption(QString::number(firstOf(left).isEmpty() ? 0 : left.size()));
            label.setToolTipText(tipOf(left));
        }
    });
}
