// A user who clicks and chooses at random: behind every command the controls are as the plain telling of the rules
// says.
#include "FormMirror.h"
#include "PlainStates.h"
#include "support/ProgramFixture.h"
#include "util/RandomText.h"

using namespace Qt::StringLiterals;

namespace {
class StateWalk : public ProgramTest
{
  protected:
    StateWalk()
    {
        load();
        program->startUp.settle();
        addSaved(u"Results-100"_s, u"http://www.seek.com/?q=1"_s);
        addSaved(u"Results-101"_s, u"http://www.seek.com/?q=2"_s);
        addSaved(u"Results-102"_s, u"http://www.seek.com/?q=3"_s, u"RPgUrlsB"_s);
        database().CloseConnection();
        program->loader.LoadDBData(false);
        dialogs.fileAnswer.clear();
    }

    /// One thing that a user does with a control that can be used; True when it was done.
    bool use(Control &control)
    {
        if (!control.isEnabled() || !control.isVisible())
            return false;
        if (auto *tabs = qobject_cast<TabControl *>(&control))
            tabs->setTab(random.number(0, int(tabs->captions().size()) - 1));
        else if (auto *box = qobject_cast<CheckBox *>(&control))
            box->click();
        else if (auto *combo = qobject_cast<ComboBox *>(&control))
            return choose(*combo);
        else if (auto *number = qobject_cast<NumberBox *>(&control))
            number->makeStep(random.oneIn(2) ? NumberBox::Direction::Up : NumberBox::Direction::Down);
        else if (auto *text = qobject_cast<TextBox *>(&control))
            text->setText(random.oneOf({u""_s, u"212"_s, u"<b>"_s}));
        else
            return false;
        return true;
    }
    bool choose(ComboBox &combo)
    {
        if (combo.style() == ComboBox::Style::DropDownCombo)
            combo.setText(random.oneOf({u""_s, u"www.gallery.com/page1"_s, u"www.gallery.com/page"_s, u"page 1"_s}));
        else if (combo.listCount() > 0)
            combo.setListIndex(random.number(0, combo.listCount() - 1));
        else
            return false;
        return true;
    }
    /// What happens without a click on the window: the browser goes and comes back, a run begins and ends.
    void happen()
    {
        switch (random.number(0, 5)) {
        case 0:
            if (form().browser.mbInitialized)
                browser().close();
            break;
        case 1:
            if (!form().browser.mbInitialized && program->runs.idle())
                connectAgain();
            break;
        case 2:
            if (program->runs.idle() && form().browser.mbInitialized)
                program->runs.begin(random.oneIn(2) ? Runs::Kind::Auto : Runs::Kind::Manual);
            break;
        default:
            if (!program->runs.idle())
                program->runs.FinalizeProcess(u"Stopped (USER)"_s);
        }
    }
    void connectAgain()
    {
        browsers.running = std::make_shared<FakeBrowser>(pump);
        form().browser.cmdANInitialize.click();
    }
    /// The editor of search sites and the menus have rules of their own; the path boxes are assigned by dialogs.
    [[nodiscard]] static bool isOfOthers(const Control &control)
    {
        const QString name = control.name();
        for (const auto part :
             {"cboSD"_L1, "cmdSD"_L1, "incSD"_L1, "chkSDHex"_L1, "lblSD"_L1, "mnu"_L1, "txtSF"_L1, "cboSFI"_L1}) {
            if (name.startsWith(part))
                return true;
        }
        return false;
    }
    [[nodiscard]] QString disagreement()
    {
        mirror(form(), plainForm);
        plain.SetStateOfControls();
        QStringList lines;
        for (const QString &line : differences(form(), plainForm)) {
            if (!isOfOthers(*form().control(line.section(u' ', 0, 0))))
                lines.append(line);
        }
        return lines.join(u'\n');
    }

    RandomText random{711};
    frmSearch plainForm;
    PlainStates plain{plainForm};
};
} // namespace

TEST_F(StateWalk, BehindEveryCommandTheControlsAreAsTheRulesSay)
{
    const QList<Control *> controls = controlsOf(form());
    constexpr int wanted = 1200;
    int used = 0;
    for (int round = 0; used < wanted && round < 100 * wanted; ++round) {
        QString what = u"happened"_s;
        if (random.oneIn(25)) {
            happen();
        } else {
            Control &control = *controls[random.number(0, int(controls.size()) - 1)];
            if (isOfOthers(control) || control.name() == u"cboANWBSelect"_s || !use(control))
                continue;
            what = control.name();
            ++used;
        }
        ASSERT_EQ(disagreement(), QString()) << what.toStdString() << " in round " << round;
    }
    EXPECT_EQ(used, wanted);
}
