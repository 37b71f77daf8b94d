#include "window/BrowserConnection.h"

#include "app/SettingKeys.h"
#include "util/Text.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int internalMode = 0;
constexpr qint64 startLimit = 10'000;
constexpr qint64 askAgainAfter = 200;
constexpr std::chrono::milliseconds shortestScriptLimit{100};
constexpr qint64 smallestSize = 51;
constexpr int standardWidth = 380;
constexpr int standardHeight = 440;
} // namespace

BrowserConnection::BrowserConnection(const Context &context, BrowserPanel &panel, const Limits &limits,
                                     const OptionBoxes &options, Runs &runs, BrowserHolder &browser,
                                     const BrowserPorts &outside)
    : mContext(context), mPanel(panel), mLimits(limits), mOptions(options), mRuns(runs), mBrowser(browser),
      mOut(outside)
{
    connect(&browser, &BrowserHolder::WindowClosing, this, &BrowserConnection::windowClosed);
    connect(&browser, &BrowserHolder::Died, this, &BrowserConnection::died);
    connect(&browser, &BrowserHolder::NewWindow2, this, &BrowserConnection::newWindow, Qt::DirectConnection);
}

void BrowserConnection::InitializeIE()
{
    const int attempt = ++mAttempt;
    bool connected = false;
    QString reason; // as of a folder that cannot be written
    mDied = false;
    guarded(mContext.log, {module, "Sub InitializeIE"_L1}, [&] {
        mPanel.mbInternalBrowser = false;
        mBrowser.release();
        mBrowser.set(std::make_unique<cIEObject>(mContext.log, mOut.desktop, mOut.clipboard, mOut.browsers));
        const bool internal = mPanel.cboANWBSelect.listIndex() == internalMode;
        try {
            connected = internal ? connectInternal() : connectFreeStanding();
        } catch (const RuntimeError &error) {
            reason = u": "_s + error.description();
            throw;
        }
    });
    if (attempt != mAttempt)
        return;
    mPanel.mbInitialized = connected;
    mContext.status.UpDateStatus(connected ? u"Initialized"_s : u"Not initialized"_s + reason);
    mContext.states.SetStateOfControls();
}

bool BrowserConnection::connectInternal()
{
    std::shared_ptr<BrowserEngine> browser = mOut.browsers.internalBrowser();
    mPanel.mbInternalBrowser = browser && take(std::move(browser));
    return mPanel.mbInternalBrowser;
}

bool BrowserConnection::connectFreeStanding()
{
    std::shared_ptr<BrowserEngine> browser = mBrowser->GetActiveBrowser();
    if (!browser) {
        if (!VerifyIEPath()) {
            mContext.dialogs.tell(u"* ERROR * Can Not Initialize * ERROR *"_s,
                                  u"Trawlex Requires Microsoft Intenet Explorer Version 5.5 Or Later."_s);
            return false;
        }
        browser = startBrowser();
    }
    return browser && take(std::move(browser));
}

bool BrowserConnection::take(std::shared_ptr<BrowserEngine> browser)
{
    browser->setScriptLimit(scriptLimit());
    return mBrowser->InitializeObject(std::move(browser));
}

/// What the user has set by hand, within reason; a page is always given some time, and no more than a read has.
std::chrono::milliseconds BrowserConnection::scriptLimit() const
{
    bool isNumber = false;
    const std::chrono::milliseconds wanted(
        mContext.settings.GetSetting(Sections::Main, Keys::ScriptLimit).toInt(&isNumber));
    if (!isNumber)
        return BrowserEngine::usualScriptLimit;
    return std::clamp<std::chrono::milliseconds>(wanted, shortestScriptLimit, BrowserEngine::readLimit);
}

/// Starts the program and asks for its window until it answers; input stays live meanwhile.
std::shared_ptr<BrowserEngine> BrowserConnection::startBrowser()
{
    const int attempt = mAttempt;
    mOut.browsers.start(mBrowser->InternetExplorerPath());
    const qint64 end = mOut.pump.tickCount() + startLimit;
    while (mOut.pump.tickCount() < end) {
        const qint64 next = mOut.pump.tickCount() + askAgainAfter;
        while (mOut.pump.tickCount() < next && attempt == mAttempt)
            mOut.pump.waitForEvents(next - mOut.pump.tickCount());
        if (attempt != mAttempt)
            return {};
        if (auto browser = mBrowser->GetActiveBrowser())
            return browser;
    }
    return {};
}

void BrowserConnection::cmdANInitialize_Click()
{
    mPanel.cmdANInitialize.setEnabled(false);
    mContext.status.UpDateStatus(u"Initializing browser"_s);
    const int attempt = mAttempt;
    mOut.pump.doEvents();
    if (attempt == mAttempt)
        InitializeIE();
}

bool BrowserConnection::VerifyIEPath()
{
    return guardedResult(mContext.log, {module, "Function VerifyIEPath"_L1}, false, [&](bool &found) {
        const QString stored = mContext.settings.GetSetting(Sections::Main, Keys::BrowserProgram);
        // A browser that the user has chosen comes before the one that happens to be installed.
        if (QFileInfo(stored).isFile())
            mBrowser->setInternetExplorerPath(stored);
        found = QFileInfo(mBrowser->InternetExplorerPath()).isFile();
        if (found)
            return;
        if (!stored.isEmpty()) {
            mBrowser->setInternetExplorerPath(stored);
            found = true;
            return;
        }
        const QString chosen = mContext.dialogs.chooseFile({}, u"Programs (*)|*|"_s, u"Locate Internet Explorer"_s);
        if (chosen.isEmpty() || !mOut.browsers.isDrivable(QFileInfo(chosen).fileName().toLower()))
            return;
        // It takes effect at the next start.
        mContext.settings.SaveSetting(Sections::Main, Keys::BrowserProgram, chosen);
        found = true;
    });
}

void BrowserConnection::windowClosed()
{
    guarded(mContext.log, {module, "Sub mobjIE_WindowClosing"_L1}, [&] {
        mDied = false;
        mPanel.mbInitialized = false;
        mRuns.stop();
        mBrowser.release();
        mContext.status.UpDateStatus(u"Not initialized"_s);
        mContext.states.SetStateOfControls();
    });
}

/// Between two runs nobody needs it at once; in the middle of one the run sees to it.
void BrowserConnection::died()
{
    if (mRuns.idle())
        return windowClosed();
    mDied = true;
    mRuns.endWait();
}

bool BrowserConnection::revive()
{
    InitializeIE();
    return mPanel.mbInitialized;
}

void BrowserConnection::newWindow(bool *cancel)
{
    // The built-in browser has no second window.
    if (mPanel.mbInternalBrowser || mOptions.chkSMV(SMV::BlockPopUps).isOn())
        *cancel = true;
}

void BrowserConnection::SetStandardPosition()
{
    guarded(mContext.log, {module, "Sub SetStandardPosition"_L1}, [&] {
        if (!mPanel.mbInitialized)
            return;
        const qint64 wantedWidth = mLimits.incSMAIEWidth.value();
        const qint64 wantedHeight = mLimits.incSMAIEHeight.value();
        QRect window = mOut.place.place();
        window.moveTopLeft(mOut.place.screen().topLeft());
        mOut.place.moveTo(window);
        if (mPanel.mbInternalBrowser)
            return;
        mBrowser->IETop(0);
        mBrowser->IEWidth(wantedWidth >= smallestSize ? static_cast<int>(wantedWidth) : standardWidth);
        mBrowser->IEHeight(wantedHeight >= smallestSize ? static_cast<int>(wantedHeight) : standardHeight);
        mBrowser->IELeft(window.left() + window.width());
    });
}
