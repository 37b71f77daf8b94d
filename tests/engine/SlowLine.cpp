#include "SlowLine.h"

SlowLine::SlowLine(std::shared_ptr<DevToolsPipe> browser, std::chrono::milliseconds gap)
    : DevToolsPipe(nullptr), mBrowser(std::move(browser))
{
    connect(mBrowser.get(), &DevToolsPipe::received, this, &DevToolsPipe::received);
    connect(&mGap, &QTimer::timeout, this, [this] {
        if (mCommands.empty())
            return;
        mBrowser->send(mCommands.front());
        mCommands.pop_front();
    });
    mGap.start(gap);
}
