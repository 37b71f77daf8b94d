// What a file is called that is fetched from an address. Works on text alone.
#pragma once

#include <QString>

namespace DownloadNames {
/// The name of the file at `url`; "" when the address is no file, that is, has no extension of three or four letters.
/// ".jpeg" and ".html" become ".jpg" and ".htm". A name that is a number gets the letters and digits of its server in
/// front, so that the numbered pictures of different servers do not collide; behind an extension of four letters it
/// does not. The name is as the address has it: it still has to be made safe for a folder.
[[nodiscard]] QString fileName(const QString &url);
} // namespace DownloadNames
