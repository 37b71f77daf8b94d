// Takes the pictures of docs/images. Not a test, so it runs only when asked for:
//   QT_SCALE_FACTOR=2 test_ui --gtest_also_run_disabled_tests --gtest_filter='*Screenshots*'
#include "WindowFixture.h"
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
            const QDir images(QStringLiteral(TRAWLEX_SOURCE_DIR "/docs/images"));
            EXPECT_TRUE(images.mkpath(u"."_s));
            EXPECT_TRUE(window.grab().save(images.filePath(name + ending)));
        }
    }

    /// A run that has just screened its third page of fourteen.
    void showRun()
    {
        form.cmdANStart.setCaption(u"X"_s);
        form.cmdANInitialize.setEnabled(false);
        form.lblTrawlexTimer.setCaption(u"12"_s);
        form.lblTrawlexTimer.setBackColor(Colours::Red);
        form.lblTrawlexTimer.setForeColor(Colours::White);
        form.incANTiming.setText(u"30"_s);
        form.cboANSavedUrls.addItem(u"Results-104"_s);
        form.cboANSavedUrls.setListIndex(0);
        for (CheckBox *const box :
             {&form.chkUseSavedUrls, &form.chkSaveSummary, &form.chkSaveUrl, &form.chkSavePages, &form.chkSaveEmail,
              &form.chkUrlBlocking, &form.chkMustContain, &form.chkMustNotContain, &form.chkMNCCS})
            box->setValue(1);
        form.chkEmailBlocking.setEnabled(false);
        form.txtANStartTag.setText(u"<main"_s);
        form.txtANStartTag.setBackColor(Colours::Green);
        form.txtANStopTag.setText(u"</main>"_s);
        form.txtANStopTag.setBackColor(Colours::Red);
        form.lblSummarySaved.setBackColor(Colours::Green);
        form.lblUrlSaved.setBackColor(Colours::Green);
        form.lblPageSaved.setBackColor(Colours::Green);
        form.lblEmailSaved.setBackColor(Colours::Red);
        form.lblMCColor.setBackColor(Colours::Green);
        form.lblMNCColor.setBackColor(Colours::Green);
        form.lblAutoPgUrls.setCaption(u"A"_s);
        form.lblAutoPgUrls.setBackColor(Colours::Blue);
        form.lblAutoPgUrls.setForeColor(Colours::White);
        form.cboANMCMNCMask.addItem(u"Criteria-0"_s);
        form.cboANMCMNCMask.setListIndex(0);
        for (const auto &text : {u"contact"_s, u"about us"_s, u"imprint"_s})
            form.lstANMC.addItem(text);
        form.lstANMC.setSelected(0, true);
        for (const auto &text : {u"casino"_s, u"cookie wall"_s})
            form.lstANMNC.addItem(text);
        form.lstANMCAllAny.setListIndex(1);
        form.lstANMNCAllAny.setListIndex(1);
        form.picStatus.print(u"3/14 http://www.north-harbour.example/contact/team/people/directory/index.html..."_s);
        window.setProgress(3, 14);
    }
};

TEST_F(DISABLED_Screenshots, AreTaken)
{
    showRun();
    take(u"auto"_s);
}
