#include "window/StartUp.h"

#include "app/SettingKeys.h"
#include "window/WindowPlaces.h"

using namespace Qt::StringLiterals;

namespace {
constexpr Place place{"frmSearch"_L1, "Sub Form_Load"_L1};
} // namespace

StartUp::StartUp(const Context &context, frmSearch &form, Options &options, DatabaseLoader &loader,
                 BrowserConnection &connection, WindowPlace &place, LifeCycle &life)
    : mContext(context), mForm(form), mOptions(options), mLoader(loader), mConnection(connection), mPlace(place),
      mLife(life)
{
}

bool StartUp::load()
{
    return guardedResult(mContext.log, place, false, [&](bool &usable) {
        mOptions.GetSettings();
        usable = mLoader.LoadDBData(false) && !mLife.isEnding();
        mForm.mbFormReady = usable;
    });
}

bool StartUp::Form_Load()
{
    bool usable = load();
    guarded(mContext.log, place, [&] {
        if (!usable)
            return mLife.end();
        connectBrowser();
    });
    if (mLife.isEnding())
        mLife.end();
    usable = usable && !mLife.isEnding();
    if (usable)
        Q_EMIT formLoaded();
    return usable;
}

/// The window, if there is one, stands meanwhile: what needs a browser is disabled, the user may end the program.
void StartUp::connectBrowser()
{
    const LifeCycle::Hold connecting(mLife);
    mContext.states.SetStateOfControls();
    mForm.browser.cmdANInitialize.setEnabled(false);
    Q_EMIT loaded();
    if (!mLife.isEnding())
        mConnection.InitializeIE();
    if (mForm.mbMainShown && orientsAtStart())
        mConnection.SetStandardPosition();
}

bool StartUp::orientsAtStart() const
{
    return mContext.settings.GetSetting(Sections::Main, Keys::OrientAtStart, u"1"_s) == "1"_L1;
}

void StartUp::settle()
{
    guarded(mContext.log, place, [&] {
        if (orientsAtStart()) {
            mForm.options.chkSMV(SMV::OrientAtStart).setValue(1);
            mPlace.moveTo(QRect(mPlace.screen().topLeft(), mPlace.place().size()));
            mConnection.SetStandardPosition();
        } else {
            mPlace.moveTo(AlignFF(mContext.settings, mainWindowName, mPlace.place(), mPlace.screen()));
        }
        mForm.mbMainShown = true;
        Q_EMIT settled();
    });
}
