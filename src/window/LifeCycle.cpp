#include "window/LifeCycle.h"

#include "app/SettingKeys.h"
#include "window/WindowPlaces.h"

#include <QScopedValueRollback>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto formName = "frmSearch"_L1;
} // namespace

LifeCycle::LifeCycle(const Parts &parts) : m(parts)
{
    // A run that has been told to end may still have a wait before it; that wait is over as it begins.
    connect(&m.timer, &cTimer::started, this, [this] {
        if (mEnding)
            m.timer.CancelTimer();
    });
}

bool LifeCycle::Form_Load()
{
    bool usable = false;
    guarded(m.log, {module, "Sub Form_Load"_L1}, [&] {
        m.options.GetSettings();
        usable = m.loader.LoadDBData(false) && !mEnding;
        if (!usable)
            return end();
        m.form.mbFormReady = true;
        const QScopedValueRollback<bool> connecting(mConnecting, true);
        m.connection.InitializeIE();
    });
    if (mEnding)
        end();
    return usable && !mEnding;
}

void LifeCycle::settle()
{
    guarded(m.log, {module, "Sub Form_Load"_L1}, [&] {
        if (m.settings.GetSetting(Sections::Main, Keys::OrientAtStart, u"1"_s) == "1"_L1) {
            m.form.options.chkSMV(SMV::OrientAtStart).setValue(1);
            m.connection.SetStandardPosition();
        } else {
            m.place.moveTo(AlignFF(m.settings, formName, m.place.place(), m.place.screen()));
        }
        m.form.mbMainShown = true;
        if (m.settings.GetSetting(Sections::Main, Keys::KeepOnTop, u"True"_s) != "True"_L1)
            return;
        m.place.putOnTop(true);
        saveOnTop(m.settings, formName, true);
        m.settings.SaveSetting(Sections::Main, Keys::KeepOnTop, u"True"_s);
    });
}

void LifeCycle::Terminate()
{
    const bool asks = m.form.options.chkSMA(SMA::PromptBeforeEnd).value() == 1;
    if (asks && m.dialogs.ask(u"Program will terminate"_s, u"Shut down Trawlex?"_s, UserDialogs::Icon::Critical,
                              UserDialogs::Answer::Yes) != UserDialogs::Answer::Yes)
        return;
    end();
}

void LifeCycle::stopRun()
{
    guarded(m.log, {module, "Sub Terminate"_L1}, [&] {
        if (m.runs.stop() && m.browser.isSet())
            m.browser->IEStop();
    });
}

void LifeCycle::end()
{
    mEnding = true;
    m.connection.giveUp();
    stopRun();
    // No object goes away while a run or the connecting of a browser stands on the stack.
    if (m.runs.idle() && !mConnecting)
        Form_Unload();
}

void LifeCycle::endWithoutSaving()
{
    mSaving = false;
    end();
}

void LifeCycle::runEnded()
{
    if (mEnding)
        QTimer::singleShot(0, this, &LifeCycle::end);
}

void LifeCycle::Form_Unload()
{
    if (mUnloaded)
        return;
    mUnloaded = true;
    guarded(m.log, {module, "Sub Form_Unload"_L1}, [&] {
        if (m.form.mbFormReady && mSaving) {
            m.options.saveAtExit();
            SaveFF(m.settings, formName, m.place.place());
        }
        m.browser.release();
        m.database.reset();
    });
    Q_EMIT ended();
}
