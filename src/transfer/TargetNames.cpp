#include "transfer/TargetNames.h"

#include "util/FileNames.h"
#include "util/Incr.h"

#include <QStringBuilder>

using cUtility::FilePart;
using cUtility::FolderSeparator;

namespace {
/// Taken off a name that has grown too long by its number, so that the number can go on growing.
constexpr qsizetype RoomForNumbers = 16;

bool isAllowed(QStringView name, qsizetype at)
{
    const QChar unit = name[at];
    if (unit.isHighSurrogate())
        return at + 1 < name.size() && name[at + 1].isLowSurrogate();
    if (unit.isLowSurrogate())
        return at > 0 && name[at - 1].isHighSurrogate();
    return unit != u'?' && unit != u'*' && unit != FolderSeparator.front() && unit.category() != QChar::Other_Control;
}

/// As much of the beginning of `text`, in whole characters, as `most` bytes hold.
QStringView beginning(QStringView text, qsizetype most)
{
    while (text.toUtf8().size() > most)
        text.chop(text.size() > 1 && text[text.size() - 2].isHighSurrogate() ? 2 : 1);
    return text;
}

QString cut(const QString &name, qsizetype most)
{
    if (name.toUtf8().size() <= most)
        return name;
    const QStringView extension = cUtility::filePart(FilePart::DotExtension, name, FolderSeparator);
    const QStringView stem = QStringView(name).chopped(extension.size());
    return beginning(stem, most - extension.toUtf8().size()) % extension;
}
} // namespace

QString TargetNames::safeName(QStringView name)
{
    if (name == u"." || name == u"..")
        return QString(name.size(), u'_');
    QString safe = name.toString();
    for (qsizetype at = 0; at < name.size(); ++at)
        if (!isAllowed(name, at))
            safe[at] = u'_';
    return cut(safe, LongestName);
}

QString TargetNames::nextPath(const QString &path)
{
    const QString next = cUtility::nextFileName(path, u"-");
    const QString folder = next.first(next.lastIndexOf(FolderSeparator) + 1);
    const QString name = next.sliced(folder.size());
    return folder + (name.toUtf8().size() <= LongestName ? name : cut(name, LongestName - RoomForNumbers));
}
