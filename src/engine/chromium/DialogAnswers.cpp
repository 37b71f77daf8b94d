#include "engine/chromium/DialogAnswers.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

// A page that puts one box after the other without end is slowed down, or it would keep two processes busy.
constexpr int boxesWithoutDelay = 20;
constexpr std::chrono::milliseconds delayOfFurther{100};

} // namespace

void DialogAnswers::answer(const QString &session, const QJsonObject &dialog)
{
    const QString kind = dialog[u"type"].toString();
    const bool accept = kind == "alert"_L1 || kind == "beforeunload"_L1;
    const auto send = [this, session, accept] {
        mConnection.send(session, "Page.handleJavaScriptDialog"_L1, {{u"accept"_s, accept}});
    };
    if (++mCount <= boxesWithoutDelay || mHurry)
        send();
    else
        QTimer::singleShot(delayOfFurther, this, send);
}

void DialogAnswers::newPage()
{
    mCount = 0;
    mHurry = false;
}
