#include "window/options/ToolTips.h"

#include "window/options/OptionTable.h"

using namespace Qt::StringLiterals;

namespace {
struct TipRow
{
    QLatin1StringView control;
    QLatin1StringView text;
};

// Those of the options stand with them in their table.
// clang-format off
constexpr TipRow tips[] = {
    {"lblSummarySaved"_L1, "Summary saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblPageSaved"_L1, "Page saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblEmailSaved"_L1, "Email saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblPhoneSaved"_L1, "Phone saved indicator - (Left click to open. Right click to close)"_L1},
    {"lblUrlSaved"_L1, "Pass Url saved indicator - (Left click to open. Right click for menu)"_L1},
    {"picANEnd"_L1, "Left click To End (Right click orients Trawlex & IE)"_L1},
    {"lblTrawlexTimer"_L1, "Trawlex Timer (Sec). Left click cancels timer"_L1},
    {"lblAutoIncrPos"_L1, "(Manual) Left click Toggle Auto Increment number, If Auto Text Url is saved. (Auto) Right click for PassUrl menu"_L1},
    {"lblAutoPgUrls"_L1, "Left click toggle collect urls of sites. Right click selects list to collect in"_L1},
    {"lblAutoCollect"_L1, "Left click toggle collect urls on sites. Right click selects list to collect in"_L1},
    {"cmdANStart"_L1, "Go = Start, X = Stop (Right click for search site menu)"_L1},
    {"cmdMNStart"_L1, "Go = Start, X = Stop (Right click for search site menu)"_L1},
    {"cmdANInitialize"_L1, "Initialize web browser. (Can't do anything without it)"_L1},
    {"cmdANMCMaskAdd"_L1, "Add a set of Must Contain and Must Not Contain texts"_L1},
    {"cmdANMCMaskMinus"_L1, "Remove the set"_L1},
    {"cmdANAddMC"_L1, "Add a Must Contain text"_L1},
    {"cmdANAddMNC"_L1, "Add a Must Not Contain text"_L1},
    {"lstANMC"_L1, "Must Contain (MC) list"_L1},
    {"lstANMNC"_L1, "Must Not Contain (MNC) list"_L1},
    {"cmdANSavedAdd"_L1, "Save the Url of the page on show"_L1},
    {"cmdANSavedGo"_L1, "Open the chosen Url"_L1},
    {"cmdANSavedMinus"_L1, "Remove the chosen Url"_L1},
    {"lblMCColor"_L1, "Must Contain indicator - green passed, red refused"_L1},
    {"lblMNCColor"_L1, "Must Not Contain indicator - green passed, red refused"_L1},
    {"txtSFDBDir"_L1, "Database directory"_L1},
    {"txtSFMNDir"_L1, "File save directory"_L1},
    {"lblMNDLTiming"_L1, "Set constant File Download (DL) time value for Manual"_L1},
    {"lblNotFoundMinSize"_L1, "Pages with sizes less than this will be checked for File Not Found (0 checks all pages)"_L1},
    {"lblMinHtmlSize"_L1, "Set minimum web page size of sought pages. Smaller html sizes will not be searched. (set to 0 to bypass)"_L1},
    {"lblSMRPPauseTime"_L1, "Seconds that a saved result page is given to arrive (0 takes the time of the links)"_L1},
    {"lblMNFileDLMinSize"_L1, "Smaller files are not downloaded (0 takes all)"_L1},
    {"lblSFMinPageSize"_L1, "Shorter pages are not saved (0 saves all)"_L1},
    {"lblAutoTxtBoxElongate"_L1, "How far the AutoText Url box grows when it is elongated"_L1},
    {"cboSDGroup"_L1, "Select which menu group A, B, this item will appear in  - (Go button popup menu). Requires restart before visible."_L1},
    {"cboSD(1)"_L1, "Search site. Type the name of a new one"_L1},
    {"cboSD(2)"_L1, "Select a url, or type a new url. - (urls must be unique in relation to every other site's urls)"_L1},
    {"cboSD(3)"_L1, "Text at which a result link begins"_L1},
    {"cboSD(4)"_L1, "Text at which a result link ends"_L1},
    {"cboSD(5)"_L1, "Text that a result link must contain as often as the number says"_L1},
    {"cboSD(6)"_L1, "Text that a result link must not contain as often as the number says"_L1},
    {"cboSD(7)"_L1, "The first result link is the one behind this text"_L1},
    {"cboSD(8)"_L1, "The last result link is the one in front of this text"_L1},
    {"cmdSDDefault"_L1, "Give the search sites that came with the program their first data again"_L1},
    {"cboSDLen"_L1, "How the length of a result link compares with the number"_L1},
    {"chkSDHex"_L1, "Resolve percent escapes in the links of this site"_L1},
    {"txtSFEditor"_L1, "The program that opens saved pages and lists"_L1},
    {"cmdSFEditorSel"_L1, "Select new editor. Must support command line arguments. (Notepad, Word, support command line aruments)"_L1},
    {"cboSFITableIn"_L1, "Table of the database to import from"_L1},
    {"cboSFITableExisting"_L1, "Table of this database to import into"_L1},
    {"cboSFIFieldIn"_L1, "Field of the table to import from"_L1},
    {"cboSFIFieldExisting"_L1, "Field of the table to import into"_L1},
    {"chkSFIImportTable"_L1, "Import one table"_L1},
    {"chkSFIImportField"_L1, "Import one field of a table"_L1},
    {"chkSFIAllSettings"_L1, "Import what the user has entered: criteria, search sites, blocked texts"_L1},
    {"chkSFIAllData"_L1, "Import all that was collected"_L1},
    {"lblSFIImportDatabase"_L1, "Database to import from"_L1},
    {"cmdSFIImport"_L1, "Start the import"_L1},
    {"cmdSFISelDatabase"_L1, "Select the database to import from"_L1},
    {"txtSBStateACs"_L1, "Drag area codes to list (add commas manually)"_L1},
    {"cboSBSelectState"_L1, "Show the area codes of a state"_L1},
    {"cboMNMCMNCFilter"_L1, "Text that links which are loaded are compared with"_L1},
    {"picMNStartStop"_L1, "A Manual run is on while this is lit"_L1},
    {"cboMNAutoUrl"_L1, "AutoText Url: a Url with a number that counts up"_L1},
    {"cboDBTables"_L1, "Table that the grid shows"_L1},
    {"cboDBFields"_L1, "Field that the filter is compared with"_L1},
    {"txtDBQuery"_L1, "Show the records that contain this text"_L1},
    {"cboDBPlace"_L1, "The field contains the text, begins with it or equals it"_L1},
    {"chkDBCard"_L1, "Show the row as a card: its page and what was found there"_L1},
    {"cmdSFAutoDBFile"_L1, "Make a new database under the next free name"_L1},
    {"cmdSFDBDirBrowse"_L1, "Select the database directory"_L1},
    {"txtSFDBFile"_L1, "Name of the database"_L1},
    {"cmdSFDBFileBrowse"_L1, "Select a database"_L1},
    {"cmdSFMNDirBrowse"_L1, "Select the file save directory"_L1},
    {"lstBlockedEmailC"_L1, "Email addresses that contain one of these texts are left out"_L1},
    {"lstBlockedUrlC"_L1, "Links that contain one of these texts are left out"_L1},
    {"cmdBlockedEC(0)"_L1, "Add a text to block email addresses"_L1},
    {"cmdBlockedEC(1)"_L1, "Delete the chosen text"_L1},
    {"cmdBlockedUrlC(0)"_L1, "Add a text to block links"_L1},
    {"cmdBlockedUrlC(1)"_L1, "Delete the chosen text"_L1},
    {"lstMN(0)"_L1, "Urls of list A"_L1},
    {"lstMN(1)"_L1, "Urls of list B"_L1},
    {"lstMN(2)"_L1, "Urls of list C"_L1},
    {"lstMN(3)"_L1, "Urls of list D"_L1},
    {"lstMN(4)"_L1, "Urls of list E"_L1},
    {"cmdSD(1)"_L1, "Add item"_L1},
    {"cmdSD(2)"_L1, "Delete item"_L1},
    {"cmdSD(3)"_L1, "Add item"_L1},
    {"cmdSD(4)"_L1, "Delete item"_L1},
    {"cmdSD(5)"_L1, "Add item"_L1},
    {"cmdSD(6)"_L1, "Delete item"_L1},
    {"cmdSD(7)"_L1, "Add item"_L1},
    {"cmdSD(8)"_L1, "Delete item"_L1},
    {"cmdSD(9)"_L1, "Add item"_L1},
    {"cmdSD(10)"_L1, "Delete item"_L1},
    {"cmdSD(11)"_L1, "Add item"_L1},
    {"cmdSD(12)"_L1, "Delete item"_L1},
    {"cmdSD(13)"_L1, "Add item"_L1},
    {"cmdSD(14)"_L1, "Delete item"_L1},
    {"cmdSD(15)"_L1, "Add item"_L1},
    {"cmdSD(16)"_L1, "Delete item"_L1},
};
// clang-format on
} // namespace

ToolTips::ToolTips(const Context &context, frmSearch &form) : mContext(context), mForm(form)
{
    mirror(form.outputs.txtANStartTag);
    mirror(form.outputs.txtANStopTag);
    mirror(form.places.txtSFDBFile);
    mirror(form.areaCodes.txtSBSelAreaCodes,
           u"Find phone number for only select area codes. Enter area code list separated by commas"_s);
    mirror(form.areaCodes.txtSBStateACs, u"Drag area codes to list (add commas manually)"_s);
    mirrorPath(form.places.txtSFDBDir, u"Database directory"_s);
    mirrorPath(form.places.txtSFMNDir, u"File save directory"_s);
    tellCase(form.criteria.mustContain.caseSensitive, u"Must Contain"_s);
    tellCase(form.criteria.mustNotContain.caseSensitive, u"Must Not Contain"_s);
    connect(&form.options.chkSMV(SMV::ToolTips), &CheckBox::Click, this,
            [this] { ShowTootTips(mContext.tips.areShown()); });
}

void ToolTips::ShowTootTips(bool show)
{
    const auto give = [&](QLatin1StringView control, QLatin1StringView text) {
        mForm.control(control)->setToolTipText(show ? QString(text) : QString());
    };
    for (const TipRow &tip : tips)
        give(tip.control, tip.text);
    for (const OptionRow &option : optionRows()) {
        if (!option.tip.isEmpty())
            give(option.control, option.tip);
    }
}

/// A box whose tip is its own text; `whenEmpty` stands for an empty one.
void ToolTips::mirror(TextBox &box, const QString &whenEmpty)
{
    connect(&box, &TextBox::Change, this, [this, &box, whenEmpty] {
        box.setToolTipText(mContext.tips.ifShown(box.text().isEmpty() ? whenEmpty : box.text()));
    });
}

/// A box whose tip is its own text, and says what it is for while tool tips are off: it is never without one.
void ToolTips::mirrorPath(TextBox &box, const QString &whileOff)
{
    connect(&box, &TextBox::Change, this,
            [this, &box, whileOff] { box.setToolTipText(mContext.tips.areShown() ? box.text() : whileOff); });
}

/// The tip of a box says which case its items are compared in.
void ToolTips::tellCase(CheckBox &box, const QString &items)
{
    connect(&box, &CheckBox::Click, this, [this, &box, items] {
        if (!mForm.mbFormReady)
            return;
        const QString tip =
            items + (box.isOn() ? " items Are case sensitive! ON"_L1 : " items are Not case sensitive! OFF"_L1);
        box.setToolTipText(mContext.tips.ifShown(tip));
    });
}
