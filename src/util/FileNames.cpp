#include "util/FileNames.h"

#include "util/Incr.h"
#include "util/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int CutNameMode = 8;

bool hasExtension(QStringView spec)
{
    constexpr qsizetype shortest = 5;
    const qsizetype size = spec.size();
    return size >= shortest && (spec[size - 4] == u'.' || spec[size - 5] == u'.');
}

/// The lower-cased names of what stands in `folder`.
QSet<QString> namesIn(const QString &folder)
{
    const QStringList names = QDir(folder.isEmpty() ? u"."_s : folder)
                                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    QSet<QString> lowerNames;
    for (const QString &name : names)
        lowerNames += cUtility::lowered(name);
    return lowerNames;
}
} // namespace

QStringView cUtility::filePart(FilePart part, QStringView spec, QStringView separator)
{
    spec = Trim(spec);
    const qsizetype at = separator.isEmpty() ? -1 : spec.lastIndexOf(separator);
    const qsizetype begin = at < 0 ? 0 : at + separator.size();
    const QStringView file = spec.sliced(begin);
    const qsizetype dot = hasExtension(spec) ? file.lastIndexOf(u'.') : -1;
    switch (part) {
    case FilePart::Name:
        return dot < 0 ? file : file.first(dot);
    case FilePart::NameWithDot:
        return dot < 0 ? file : file.first(dot + 1);
    case FilePart::NameAndExtension:
        return file;
    case FilePart::Extension:
        return dot < 0 ? QStringView() : file.sliced(dot + 1);
    case FilePart::DotExtension:
        return dot < 0 ? QStringView() : file.sliced(dot);
    case FilePart::Folder:
        return spec.first(begin);
    case FilePart::FolderWithoutSeparator:
        return spec.first(std::max<qsizetype>(at, 0));
    case FilePart::Drive:
        return spec.first(std::min<qsizetype>(spec.size(), 1));
    }
    return {};
}

QString cUtility::GetFileSpecParts(int mode, QStringView spec, qsizetype lngMax, QStringView separator)
{
    if (mode == CutNameMode) {
        const QStringView name = filePart(FilePart::Name, spec, separator);
        return lngMax < 0 || name.size() < lngMax ? QString() : name.first(lngMax).toString();
    }
    if (mode < 0 || mode > CutNameMode)
        return {};
    return filePart(FilePart(mode), spec, separator).toString();
}

bool cUtility::isNameTaken(const QString &path)
{
    const QFileInfo info(path);
    return !path.isEmpty() && (info.exists() || info.isSymLink());
}

bool cUtility::isSameContent(const QString &path, const QString &other)
{
    constexpr qint64 piece = 65'536;
    QFile first(path), second(other);
    if (first.size() != second.size() || !first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly))
        return false;
    while (!first.atEnd()) {
        const QByteArray bytes = first.read(piece);
        if (bytes.isEmpty() || bytes != second.read(piece))
            return false;
    }
    return true;
}

QString cUtility::GetVacantFileSpecs(const QString &path)
{
    QString vacant = path;
    while (isNameTaken(vacant))
        vacant = nextFileName(vacant);
    return vacant;
}

QString cUtility::OutPutFileName(const QString &path)
{
    const QString folder = path.first(path.lastIndexOf(FolderSeparator) + 1);
    const QString file = path.sliced(folder.size());
    const QSet<QString> taken = namesIn(folder);
    if (!taken.contains(lowered(file)))
        return path;

    const qsizetype dot = file.lastIndexOf(u'.');
    const QString name = dot < 0 ? file : file.first(dot);
    const QString extension = file.sliced(name.size());
    const qsizetype mark = name.lastIndexOf(u'_');
    const QStringView behind = QStringView(name).sliced(mark + 1);
    const bool isNumbered = mark >= 0 && !behind.isEmpty() && CollectNumbers(behind).size() == behind.size();

    const QString stem = isNumbered ? name.first(mark) : name;
    QString number = isNumbered ? behind.toString() : u"0"_s;
    QString candidate;
    do {
        number = Incr(number, 4, false, 1, {}, u"1", {}, false);
        while (number.startsWith(u'0'))
            number.remove(0, 1);
        candidate = stem + u'_' + number + extension;
    } while (taken.contains(lowered(candidate)));
    return folder + candidate;
}
