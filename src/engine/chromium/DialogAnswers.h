// Answers the boxes that a page puts before its user, each at once, so that none ever stands: one that stands when its
// page is left takes the browser down. alert is confirmed, confirm and prompt are declined, "leave this page?" is
// agreed to.
#pragma once

#include "engine/chromium/DevToolsConnection.h"

namespace DialogAnswers {
/// `dialog` is what the browser has told of the box, `session` where.
void answer(DevToolsConnection &connection, const QString &session, const QJsonObject &dialog);
} // namespace DialogAnswers
