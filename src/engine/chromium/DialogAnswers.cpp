#include "engine/chromium/DialogAnswers.h"

using namespace Qt::Literals::StringLiterals;

void DialogAnswers::answer(DevToolsConnection &connection, const QString &session, const QJsonObject &dialog)
{
    const QString kind = dialog[u"type"].toString();
    const bool accept = kind == "alert"_L1 || kind == "beforeunload"_L1;
    connection.send(session, "Page.handleJavaScriptDialog"_L1, {{u"accept"_s, accept}});
}
