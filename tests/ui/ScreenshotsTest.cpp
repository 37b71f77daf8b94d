// Takes the pictures of docs/images. Not a test, so it runs only when asked for:
//   QT_SCALE_FACTOR=2 test_ui --gtest_also_run_disabled_tests --gtest_filter='*Screenshots*'
#include "WindowFixture.h"
#include "support/Places.h"
#include "ui/look/Theme.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

struct DISABLED_Screenshots : WindowFixture
{
    ~DISABLED_Screenshots() override { Theme::of(*qApp).setMode(Theme::Mode::Desktop); }

    void take(const QString &name)
    {
        for (const auto &[mode, ending] :
             {std::pair{Theme::Mode::Light, u"-light.png"_s}, {Theme::Mode::Dark, u"-dark.png"_s}}) {
            Theme::of(*qApp).setMode(mode);
            settle();
            const QDir images(inSourceTree(u"docs/images"_s));
            EXPECT_TRUE(images.mkpath(u"."_s));
            EXPECT_TRUE(window.grab().save(images.filePath(name + ending)));
        }
    }

    /// A run that has just screened its third page of fourteen.
    void showRun()
    {
        form.autoRun.cmdANStart.setCaption(u"X"_s);
        form.browser.cmdANInitialize.setEnabled(false);
        form.browser.lblTrawlexTimer.setCaption(u"12"_s);
        form.browser.lblTrawlexTimer.setBackColor(Colours::Red);
        form.browser.lblTrawlexTimer.setForeColor(Colours::White);
        form.autoRun.incANTiming.setText(u"30"_s);
        form.saved.cboANSavedUrls.addItem(u"Results-104"_s);
        form.saved.cboANSavedUrls.setListIndex(0);
        for (CheckBox *const box : {&form.saved.chkUseSavedUrls, &form.outputs.chkSaveSummary, &form.outputs.chkSaveUrl,
                                    &form.outputs.chkSavePages, &form.outputs.chkSaveEmail, &form.blocking.urls.on,
                                    &form.criteria.mustContain.on, &form.criteria.mustNotContain.on,
                                    &form.criteria.mustNotContain.caseSensitive})
            box->setValue(1);
        form.blocking.email.on.setEnabled(false);
        form.outputs.txtANStartTag.setText(u"<main"_s);
        form.outputs.txtANStartTag.setBackColor(Colours::Green);
        form.outputs.txtANStopTag.setText(u"</main>"_s);
        form.outputs.txtANStopTag.setBackColor(Colours::Red);
        form.outputs.lblSummarySaved.setBackColor(Colours::Green);
        form.outputs.lblUrlSaved.setBackColor(Colours::Green);
        form.outputs.lblPageSaved.setBackColor(Colours::Green);
        form.outputs.lblEmailSaved.setBackColor(Colours::Red);
        form.criteria.mustContain.lamp.setBackColor(Colours::Green);
        form.criteria.mustNotContain.lamp.setBackColor(Colours::Green);
        form.collect.lblAutoPgUrls.setCaption(u"A"_s);
        form.collect.lblAutoPgUrls.setBackColor(Colours::Blue);
        form.collect.lblAutoPgUrls.setForeColor(Colours::White);
        form.criteria.cboANMCMNCMask.addItem(u"Criteria-0"_s);
        form.criteria.cboANMCMNCMask.setListIndex(0);
        for (const auto &text : {u"contact"_s, u"about us"_s, u"imprint"_s})
            form.criteria.mustContain.items.addItem(text);
        form.criteria.mustContain.items.setSelected(0, true);
        for (const auto &text : {u"casino"_s, u"cookie wall"_s})
            form.criteria.mustNotContain.items.addItem(text);
        form.criteria.mustContain.demand.setListIndex(1);
        form.criteria.mustNotContain.demand.setListIndex(1);
        form.frame.picStatus.print(
            u"3/14 http://www.north-harbour.example/contact/team/people/directory/index.html..."_s);
        window.setProgress(3, 14);
    }
};

TEST_F(DISABLED_Screenshots, AreTaken)
{
    showRun();
    take(u"auto"_s);
}
