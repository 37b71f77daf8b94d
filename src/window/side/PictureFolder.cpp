#include "window/side/PictureFolder.h"

#include "util/FileNames.h"
#include "util/Text.h"

#include <QDir>
#include <QDirIterator>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr std::array endings{".jpg"_L1, ".gif"_L1, ".bmp"_L1};

struct Name
{
    QString lowered, asItIs;
    bool operator<(const Name &other) const
    {
        const int order = lowered.compare(other.lowered);
        return order != 0 ? order < 0 : asItIs < other.asItIs;
    }
};
} // namespace

QStringList PictureFolder::pictures(const QString &directory)
{
    std::array<std::vector<Name>, endings.size()> found;
    QDirIterator files(directory, QDir::Files | QDir::Hidden);
    while (!directory.isEmpty() && files.hasNext()) {
        files.next();
        Name name{{}, files.fileName()};
        name.lowered = cUtility::lowered(name.asItIs);
        for (std::size_t kind = 0; kind < endings.size(); ++kind)
            if (name.lowered.endsWith(endings.at(kind)))
                found.at(kind).push_back(name);
    }
    QStringList all;
    for (std::vector<Name> &names : found) {
        std::sort(names.begin(), names.end());
        for (const Name &name : names)
            all.append(name.asItIs);
    }
    return all;
}

QString PictureFolder::directoryOf(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return {};
    const QString directory = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    return directory.endsWith(cUtility::FolderSeparator) ? directory : directory + cUtility::FolderSeparator.toString();
}

bool PictureFolder::isSameDirectory(const QString &one, const QString &other)
{
    const QString place = QFileInfo(one).canonicalFilePath();
    return one == other || (!place.isEmpty() && place == QFileInfo(other).canonicalFilePath());
}
