// What stands inside the tags of a markup, found as plain text. Works on text alone.
#pragma once

#include "util/Errors.h"

#include <QStringList>

namespace cIEText {
/// The contents of `tag` in `markup`, case ignored, in order and in the markup's own case; the empty list when there is
/// none, and when an argument is empty. A ">" at the end of `tag` is dropped; one character behind the tag's text is
/// skipped, so the content of a tag with attributes begins inside them. A content ends at `endTag` or at a nearer next
/// `tag`. A tag without an end starts the walk anew, so that its contents repeat; 10000 steps and 10000 contents are
/// the limits. An end directly behind the tag's text ends the walk: the error goes to `log` (which may be null), and
/// what was found until then is the answer.
[[nodiscard]] QStringList Get_HtmlTag_Content(QStringView tag, QStringView endTag, QStringView markup,
                                              ErrorReceiver *log);
} // namespace cIEText
