#include "window/commands/SitePanel.h"

#include "pages/Addresses.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;

/// The field of a pair of buttons, 0 to 7.
SiteField fieldOfPair(int pair)
{
    return pair == 0 ? SiteField::SiteName : static_cast<SiteField>(static_cast<int>(SiteField::Url) + pair - 1);
}
} // namespace

SitePanel::SitePanel(const Context &context, SiteEditor &editor, SiteEditing &editing, DefaultSites &defaults,
                     BrowserHolder &browser)
    : mContext(context), mEditor(editor), mEditing(editing), mDefaults(defaults), mBrowser(browser)
{
    for (int box = editor.cboSD.first(); box <= editor.cboSD.last(); ++box) {
        connect(&editor.cboSD(box), &ComboBox::Click, this, [this, box] { cboSD_Click(box); });
        connect(&editor.cboSD(box), &ComboBox::Change, this, [this] { mEditing.SetSDState(false); });
    }
    for (int button = editor.cmdSD.first(); button <= editor.cmdSD.last(); ++button)
        connect(&editor.cmdSD(button), &Button::Click, this, [this, button] { cmdSD_Click(button); });
    connect(&editor.cmdSDDefault, &Button::Click, this, &SitePanel::cmdSDDefault_Click);
    connect(&editor.chkSDHex, &CheckBox::Click, this,
            [this] { write(SiteField::CnvHex, QString::number(mEditor.chkSDHex.value())); });
    connect(&editor.cboSDGroup, &ComboBox::Click, this, [this] {
        if (mEditor.cboSDGroup.listIndex() >= 0)
            write(SiteField::Group, QString::number(mEditor.cboSDGroup.listIndex()));
    });
}

void SitePanel::cboSD_Click(int box)
{
    if (box == mEditor.cboSD.first() && !mEditing.DoesSDExist().isEmpty())
        mEditing.LoadSearchSiteData(SiteEditing::wholeRecord);
    mEditing.SetSDState(false);
}

/// The odd buttons add, the even ones delete.
void SitePanel::cmdSD_Click(int button)
{
    const auto change = button % 2 == 1 ? SiteEditing::Change::Add : SiteEditing::Change::Remove;
    mContext.status.UpDateStatus(mEditing.ModifySearchData(fieldOfPair((button - 1) / 2), change));
    mEditing.SetSDState(false);
}

void SitePanel::cmdSDDefault_Click()
{
    guarded(mContext.log, {module, "Sub cmdSDDefault_Click"_L1}, [&] {
        const auto answer = mContext.dialogs.ask(u"All Updates Will Be Lost"_s, u"Reset Default Search Site Data?"_s,
                                                 UserDialogs::Icon::Critical, UserDialogs::Answer::No);
        if (answer != UserDialogs::Answer::Yes)
            mContext.status.UpDateStatus(u"User canceled"_s);
        else if (mDefaults.AddDefaultSSData())
            mContext.status.UpDateStatus(u"Default Site Data Reset"_s);
    });
}

/// A single field of the chosen record takes its value at once.
void SitePanel::write(SiteField field, const QString &value)
{
    const QString site = mEditing.DoesSDExist();
    if (site.isEmpty())
        return;
    const QString message = mEditing.GetSearchSiteData(site, value, field, SiteEditing::Change::Add);
    mEditing.SetSDState(false);
    mContext.status.UpDateStatus(message);
}

void SitePanel::takePage()
{
    guarded(mContext.log, {module, "Sub picStatus_DblClick"_L1}, [&] {
        const QString address = mBrowser->GetSiteUrl();
        mEditing.ClearSD(true);
        mEditor.cboSD(1).setText(cUtility::asColumnText(mBrowser->GetSiteTitle()));
        mEditor.cboSD(2).setText(cIEText::GetServerFromUrl(address, {false, true, true}));
        mEditing.SetSDState(false);
    });
}

void SitePanel::beginRecord()
{
    takePage();
    guarded(mContext.log, {module, "Sub beginRecord"_L1}, [&] {
        mEditor.cboSD(1).setText(mEditor.cboSD(1).text().remove(u'\''));
        mEditor.cboSD(2).setText(cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), cIEText::hostOnly));
    });
}
