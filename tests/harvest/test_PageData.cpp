// The text of a page that is stored, and the colours of the two tag boxes.
#include "PageFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QString address = u"http://www.site1.com/"_s;

class PageDataTest : public PageTest
{
  protected:
    PageDataTest()
    {
        FakePage &page = window().pages[address];
        page.html = u"<p>One, two</p>"_s;
        page.text = u"One, two\r\nthree\nfour"_s;
        page.links = {u"http://www.a.com/x"_s, u"http://www.b.com/y"_s};
        window().show(address);
        form.outputs.chkSavePages.setValue(1);
    }
    QString data(PageData::Target target)
    {
        window().show(address);
        PageReading reading(browser);
        return pageData.GetPageData(reading, target);
    }
};
} // namespace

TEST_F(PageDataTest, IsEmptyUnlessPagesAreSaved)
{
    form.outputs.chkSavePages.setValue(0);
    EXPECT_EQ(data(PageData::Target::File), QString());
    EXPECT_EQ(data(PageData::Target::SiteSummary), QString());
}

namespace {
struct TargetCase
{
    int toSummary, toFile;
    bool inSummary, inFile;
};
class Targets : public PageDataTest, public testing::WithParamInterface<TargetCase>
{
};
} // namespace

TEST_P(Targets, FollowTheTwoSwitches)
{
    const TargetCase &row = GetParam();
    form.outputs.chkSaveToSS.setValue(row.toSummary);
    form.outputs.chkSaveToFile.setValue(row.toFile);
    EXPECT_EQ(!data(PageData::Target::SiteSummary).isEmpty(), row.inSummary);
    EXPECT_EQ(!data(PageData::Target::File).isEmpty(), row.inFile);
}

INSTANTIATE_TEST_SUITE_P(PageData, Targets,
                         testing::Values(TargetCase{1, 1, true, true}, TargetCase{1, 0, true, false},
                                         TargetCase{0, 1, false, true}, TargetCase{0, 0, true, true}),
                         [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(PageDataTest, AsHtmlItIsTheMarkup)
{
    EXPECT_EQ(data(PageData::Target::File), u""_s); // to the table alone, as it starts
    EXPECT_EQ(data(PageData::Target::SiteSummary), u"<p>One, two</p>"_s);
}

TEST_F(PageDataTest, AsTextItIsOneLineWithoutCommas)
{
    form.outputs.cboANSaveType.setListIndex(1);
    EXPECT_EQ(data(PageData::Target::SiteSummary), u"One  two three four"_s);
}

TEST_F(PageDataTest, AsLinksEachOneIsALineAndTheTagsApplyToEach)
{
    form.outputs.cboANSaveType.setListIndex(2);
    EXPECT_EQ(data(PageData::Target::SiteSummary), u"http://www.a.com/x\r\nhttp://www.b.com/y\r\n"_s);
    form.outputs.txtANStopTag.setText(u".com"_s);
    EXPECT_EQ(data(PageData::Target::SiteSummary), u"http://www.a\r\nhttp://www.b\r\n"_s);
}

TEST_F(PageDataTest, APageWithoutLinksIsOneLineEnd)
{
    window().pages[address].links.clear();
    form.outputs.cboANSaveType.setListIndex(2);
    EXPECT_EQ(data(PageData::Target::SiteSummary), u"\r\n"_s);
}

TEST_F(PageDataTest, ATextShorterThanTheMinimumIsNotStored)
{
    const auto length = window().pages[address].html.size();
    form.limits.incSFMinFileSize.setText(QString::number(length));
    EXPECT_EQ(data(PageData::Target::SiteSummary).size(), length);
    form.limits.incSFMinFileSize.setText(QString::number(length + 1));
    EXPECT_EQ(data(PageData::Target::SiteSummary), QString());
}

namespace {
struct SegmentCase
{
    const char *tag;
    QString start, stop, result;
    Colour startColour, stopColour;
};

void PrintTo(const SegmentCase &row, std::ostream *out)
{
    *out << row.tag;
}

class Segments : public PageDataTest, public testing::WithParamInterface<SegmentCase>
{
};

constexpr Colour before = Colours::Blue; ///< what the boxes show from the page before
} // namespace

TEST_P(Segments, AreCutAndTheBoxesTellWhatWasFound)
{
    const SegmentCase &row = GetParam();
    form.outputs.txtANStartTag.setText(row.start);
    form.outputs.txtANStopTag.setText(row.stop);
    form.outputs.txtANStartTag.setBackColor(before);
    form.outputs.txtANStopTag.setBackColor(before);
    EXPECT_EQ(pageData.GetStringSegment(u"ab[Begin]middle[End]yz"_s), row.result);
    EXPECT_EQ(form.outputs.txtANStartTag.backColor(), row.startColour);
    EXPECT_EQ(form.outputs.txtANStopTag.backColor(), row.stopColour);
}

INSTANTIATE_TEST_SUITE_P(
    PageData, Segments,
    testing::Values(
        SegmentCase{"none in use", u""_s, u""_s, u"ab[Begin]middle[End]yz"_s, before, before},
        SegmentCase{"start alone, missing", u"[X]"_s, u""_s, u"ab[Begin]middle[End]yz"_s, Colours::Red,
                    Colours::Window},
        SegmentCase{"start alone, found: its length less one is cut from the left", u"[end]"_s, u""_s,
                    u"egin]middle[End]yz"_s, Colours::Green, Colours::Window},
        SegmentCase{"stop alone, missing", u""_s, u"[X]"_s, u"ab[Begin]middle[End]yz"_s, Colours::Window, Colours::Red},
        SegmentCase{"stop alone, found", u""_s, u"[END]"_s, u"ab[Begin]middle"_s, Colours::Window, Colours::Green},
        SegmentCase{"both found", u"[begin]"_s, u"[end]"_s, u"middle"_s, Colours::Green, Colours::Green},
        SegmentCase{"both, stop missing", u"[begin]"_s, u"[X]"_s, u"middle[End]yz"_s, Colours::Green, Colours::Red},
        SegmentCase{"both, start missing", u"[X]"_s, u"[end]"_s, u"ab[Begin]middle"_s, Colours::Red, Colours::Green},
        SegmentCase{"both missing", u"[X]"_s, u"[Y]"_s, u"ab[Begin]middle[End]yz"_s, Colours::Red, Colours::Red},
        SegmentCase{"stop before start counts as missing", u"[end]"_s, u"[begin]"_s, u"yz"_s, Colours::Green,
                    Colours::Red}),
    [](const auto &row) { return "row" + std::to_string(row.index); });
