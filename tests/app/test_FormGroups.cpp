// The controls of the main window as the rules name them: kinds, digits, items, and how they stand at first.
#include "app/frmSearch.h"

#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
/// The kind that a name's first letters stand for.
bool isOfItsKind(const Control &control)
{
    const QString name = control.name();
    const auto begins = [&](QLatin1StringView letters) { return name.startsWith(letters); };
    // Two short lists that stand in a combo.
    if (begins("cbo"_L1) || name == "lstANMCAllAny"_L1 || name == "lstANMNCAllAny"_L1)
        return qobject_cast<const ComboBox *>(&control) != nullptr;
    if (begins("chk"_L1))
        return qobject_cast<const CheckBox *>(&control) != nullptr;
    if (begins("cmd"_L1))
        return qobject_cast<const Button *>(&control) != nullptr;
    if (begins("txt"_L1))
        return qobject_cast<const TextBox *>(&control) != nullptr;
    if (begins("lst"_L1))
        return qobject_cast<const ListBox *>(&control) != nullptr;
    if (begins("inc"_L1))
        return qobject_cast<const NumberBox *>(&control) != nullptr;
    if (begins("lbl"_L1))
        return qobject_cast<const Label *>(&control) != nullptr;
    if (begins("pic"_L1))
        return qobject_cast<const PictureBox *>(&control) != nullptr;
    if (begins("sst"_L1))
        return qobject_cast<const TabControl *>(&control) != nullptr;
    if (begins("fxg"_L1))
        return qobject_cast<const Grid *>(&control) != nullptr;
    if (begins("crd"_L1))
        return qobject_cast<const Card *>(&control) != nullptr;
    return qobject_cast<const MenuItem *>(&control) != nullptr || qobject_cast<const Menu *>(&control) != nullptr;
}

class FormGroupsTest : public testing::Test
{
  protected:
    [[nodiscard]] QList<Control *> controls() const { return form.findChildren<Control *>(Qt::FindDirectChildrenOnly); }
    template <class Kind> [[nodiscard]] Kind *find(const QString &name) const
    {
        return qobject_cast<Kind *>(form.control(name));
    }

    frmSearch form;
};
} // namespace

TEST_F(FormGroupsTest, EachControlIsFoundByItsNameWhichNoOtherHas)
{
    EXPECT_GT(controls().size(), 250);
    for (Control *control : controls())
        EXPECT_EQ(form.control(control->name()), control) << qPrintable(control->name());
    EXPECT_EQ(form.control(u"cmdNothing"_s), nullptr);
    EXPECT_EQ(form.control(u"chkSMA"_s), nullptr) << "a member of an array is named with its number";
    EXPECT_EQ(form.control(u"chkSMA(11)"_s), nullptr);
}

TEST_F(FormGroupsTest, EachControlIsOfTheKindThatItsNameSays)
{
    for (const Control *control : controls())
        EXPECT_TRUE(isOfItsKind(*control)) << qPrintable(control->name());
}

TEST_F(FormGroupsTest, NumberBoxesHaveTheirDigits)
{
    const QHash<QString, int> digits{{u"incNotFoundMinSize"_s, 6},  {u"incSFMinFileSize"_s, 6},
                                     {u"incSFMinGraphicSize"_s, 6}, {u"incSMDMinHtmlSize"_s, 6},
                                     {u"incSMAMAutoTxtElng"_s, 4},  {u"incSMAIEWidth"_s, 4},
                                     {u"incSMAIEHeight"_s, 4},      {u"incMNAutoUrl"_s, 10}};
    int count = 0;
    for (Control *control : controls()) {
        if (const auto *box = qobject_cast<NumberBox *>(control)) {
            ++count;
            EXPECT_EQ(box->digits(), digits.value(box->name(), 3)) << qPrintable(box->name());
            EXPECT_EQ(box->value(), 0) << qPrintable(box->name());
        }
    }
    EXPECT_GT(count, digits.size());
}

TEST_F(FormGroupsTest, ArraysHaveTheirMembers)
{
    const std::pair<QString, std::pair<int, int>> arrays[] = {
        {u"chkSMA"_s, {0, 10}},        {u"chkSMD"_s, {0, 8}},       {u"chkSMV"_s, {0, 4}}, {u"lstMN"_s, {0, 4}},
        {u"cmdBlockedUrlC"_s, {0, 1}}, {u"cmdBlockedEC"_s, {0, 1}}, {u"cboSD"_s, {1, 8}},  {u"cmdSD"_s, {1, 16}},
        {u"incSDMCMNC"_s, {0, 1}},     {u"lblSDCount"_s, {1, 6}}};
    for (const auto &[name, bounds] : arrays) {
        for (int index = bounds.first; index <= bounds.second; ++index)
            EXPECT_NE(form.control(u"%1(%2)"_s.arg(name).arg(index)), nullptr) << qPrintable(name) << index;
        for (const int outside : {bounds.first - 1, bounds.second + 1})
            EXPECT_EQ(form.control(u"%1(%2)"_s.arg(name).arg(outside)), nullptr) << qPrintable(name) << outside;
    }
}

TEST_F(FormGroupsTest, CombosBeginWithTheirItemsAndTheFirstOneChosen)
{
    const QStringList letters{u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s};
    const QStringList demands{u"All"_s, u"Any"_s, u"Select"_s};
    const QHash<QString, QStringList> items{{u"cboANWBSelect"_s, {u"Internal"_s, u"IExplore"_s}},
                                            {u"cboANSaveType"_s, {u"Html"_s, u"Text"_s, u"Links"_s}},
                                            {u"cboFilesSites"_s, {u"File"_s, u"Site"_s}},
                                            {u"cboMNMCMNC"_s, {QString(), u"MC"_s, u"MNC"_s}},
                                            {u"cboSDLen"_s, {u"="_s, u">"_s, u"<"_s, u">="_s, u"<="_s}},
                                            {u"lstANMCAllAny"_s, demands},
                                            {u"lstANMNCAllAny"_s, demands},
                                            {u"cboANList"_s, letters},
                                            {u"cboMNList"_s, letters},
                                            {u"cboSDGroup"_s, letters}};
    for (auto combo = items.begin(); combo != items.end(); ++combo) {
        const auto *box = find<ComboBox>(combo.key());
        ASSERT_NE(box, nullptr) << qPrintable(combo.key());
        EXPECT_EQ(box->items(), combo.value()) << qPrintable(combo.key());
        EXPECT_EQ(box->listIndex(), 0) << qPrintable(combo.key());
    }
}

TEST_F(FormGroupsTest, BoxesBeginOffListsEmptyAndTextsBlank)
{
    for (Control *control : controls()) {
        if (const auto *box = qobject_cast<CheckBox *>(control)) {
            EXPECT_EQ(box->value(), 0) << qPrintable(box->name());
        }
        if (const auto *list = qobject_cast<ListBox *>(control)) {
            EXPECT_EQ(list->listCount(), 0) << qPrintable(list->name());
        }
        if (const auto *text = qobject_cast<TextBox *>(control)) {
            EXPECT_EQ(text->text(), QString()) << qPrintable(text->name());
        }
    }
    EXPECT_FALSE(form.mbFormReady);
    EXPECT_FALSE(form.browser.mbInitialized);
    EXPECT_TRUE(form.runs.idle());
}

TEST_F(FormGroupsTest, TheListOnShowIsTheOneOfTheChosenLetter)
{
    for (int list = 0; list < 5; ++list) {
        form.lists.cboMNList.setListIndex(list);
        EXPECT_EQ(&form.lists.shown(), &form.lists.lstMN(list));
    }
}

TEST_F(FormGroupsTest, SwitchesHaveTheNumbersOfTheRules)
{
    const std::pair<int, int> numbers[] = {
        {SMA::ServersOnly, 0},       {SMA::ConvertHex, 1},         {SMA::ReturnToStart, 2},
        {SMA::DownloadByFtp, 3},     {SMA::OpenNextOnDelete, 4},   {SMA::IncrementPassUrl, 5},
        {SMA::IncrementSavedUrl, 6}, {SMA::PromptBeforeEnd, 7},    {SMA::OpenDirOnTimer, 8},
        {SMA::UniqueServers, 9},     {SMA::DownloadAsBrowser, 10}, {SMD::OpenExports, 0},
        {SMD::UniqueInSummary, 1},   {SMD::UniqueInSelect, 2},     {SMD::UrlWithEmail, 3},
        {SMD::UrlWithPhone, 4},      {SMD::TitleAsNote, 5},        {SMD::FaxOnly, 6},
        {SMD::PassUrlIfNoData, 7},   {SMD::SaveAutoTextOnStop, 8}, {SMV::ToolTips, 0},
        {SMV::ErrorMessages, 1},     {SMV::BlockPopUps, 2},        {SMV::KeepMagnifyPlace, 3},
        {SMV::OrientAtStart, 4}};
    for (const auto &[name, number] : numbers)
        EXPECT_EQ(name, number);
    EXPECT_EQ(form.options.chkSMA.last(), SMA::DownloadAsBrowser);
    EXPECT_EQ(form.options.chkSMD.last(), SMD::SaveAutoTextOnStop);
    EXPECT_EQ(form.options.chkSMV.last(), SMV::OrientAtStart);
}
