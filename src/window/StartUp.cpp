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

bool StartUp::Form_Load()
{
    bool usable = false;
    guarded(mContext.log, place, [&] {
        mOptions.GetSettings();
        usable = mLoader.LoadDBData(false) && !mLife.isEnding();
        if (!usable)
            return mLife.end();
        mForm.mbFormReady = true;
        const LifeCycle::Hold connecting(mLife);
        mConnection.InitializeIE();
    });
    if (mLife.isEnding())
        mLife.end();
    usable = usable && !mLife.isEnding();
    if (usable)
        Q_EMIT formLoaded();
    return usable;
}

void StartUp::settle()
{
    guarded(mContext.log, place, [&] {
        if (mContext.settings.GetSetting(Sections::Main, Keys::OrientAtStart, u"1"_s) == "1"_L1) {
            mForm.options.chkSMV(SMV::OrientAtStart).setValue(1);
            mConnection.SetStandardPosition();
        } else {
            mPlace.moveTo(AlignFF(mContext.settings, mainWindowName, mPlace.place(), mPlace.screen()));
        }
        mForm.mbMainShown = true;
        Q_EMIT settled();
    });
}
