#include "harvest/PageData.h"

#include "pages/PageTexts.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
enum SaveType { Html = 0, Text = 1, Links = 2 };

void show(TextBox &box, TagReport report)
{
    switch (report) {
    case TagReport::Unchanged:
        return;
    case TagReport::NotInUse:
        return box.setBackColor(Colours::Window);
    case TagReport::Found:
        return box.setBackColor(Colours::Green);
    case TagReport::Missing:
        return box.setBackColor(Colours::Red);
    }
}
} // namespace

QString PageData::GetStringSegment(const QString &text)
{
    return guardedResult(mLog, {module, "Function GetStringSegment"_L1}, QString(), [&](QString &result) {
        const StringSegment segment =
            ::GetStringSegment(text, mOutputs.txtANStartTag.text(), mOutputs.txtANStopTag.text());
        show(mOutputs.txtANStartTag, segment.start);
        show(mOutputs.txtANStopTag, segment.stop);
        result = segment.text;
    });
}

QString PageData::whole(PageReading &page)
{
    switch (mOutputs.cboANSaveType.listIndex()) {
    case Html:
        return GetStringSegment(page.html());
    case Text:
        return GetStringSegment(cUtility::MultipleLinesToSingle(page.text()).replace(u',', u' '));
    case Links: {
        QString all;
        for (const QString &link : page.links())
            all += GetStringSegment(link) + "\r\n"_L1;
        return all;
    }
    default:
        return {};
    }
}

bool PageData::goesTo(Target target) const
{
    const bool toSummary = mOutputs.chkSaveToSS.value() == 1;
    const bool toFile = mOutputs.chkSaveToFile.value() == 1;
    if (toSummary == toFile)
        return true;
    return target == Target::SiteSummary ? toSummary : toFile;
}

QString PageData::GetPageData(PageReading &page, Target target)
{
    return guardedResult(mLog, {module, "Function GetPageData"_L1}, QString(), [&](QString &result) {
        if (mOutputs.chkSavePages.value() != 1)
            return;
        const QString data = whole(page);
        const qint64 least = mLimits.incSFMinFileSize.value();
        if (!(least >= 1 && data.size() < least) && goesTo(target))
            result = data;
    });
}
