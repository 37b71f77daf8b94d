#include "lists/ListFile.h"

#include "util/ColumnText.h"
#include "util/FileNames.h"
#include "util/TextFiles.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
// Whoever opens and closes the files of a database that this program has open takes its locks away.
bool isOfADatabase(const QFileInfo &file)
{
    static constexpr std::array endings{".mdb"_L1, "-wal"_L1, "-shm"_L1, "-journal"_L1};
    return std::ranges::any_of(endings, [name = file.filePath(), target = file.canonicalFilePath()](auto ending) {
        return name.endsWith(ending, Qt::CaseInsensitive) || target.endsWith(ending, Qt::CaseInsensitive);
    });
}

constexpr auto noList = "A database is no list"_L1;
} // namespace

ListFile::Content ListFile::read(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {{}, u"No such file"_s};
    if (isOfADatabase(file))
        return {{}, noList};
    if (!file.isReadable())
        return {{}, u"File can not be read"_s};
    if (file.size() > longest)
        return {{}, u"Size > %1 MB"_s.arg(longest / 1024 / 1024)};
    Content content;
    const QString text = cUtility::LoadTextFile(path);
    for (QStringView line : QStringView(text).tokenize(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (!line.isEmpty())
            content.lines.append(cUtility::asColumnText(line.toString()));
    }
    return content;
}

QString ListFile::proposal(const QString &directory, const QString &base)
{
    QString name = base;
    for (const QChar unfit : u"./:\\"_s) // dots by rule, the others because no file name holds them
        name.remove(unfit);
    return cUtility::GetVacantFileSpecs(directory + (name.isEmpty() ? u"UrlExport"_s : name) + "-0.txt"_L1);
}

QString ListFile::append(const QString &path, const QStringList &items)
{
    if (isOfADatabase(QFileInfo(path)))
        return noList;
    QString fault = "Not saved. "_L1 + path;
    QFile file(path);
    if (!file.open(QIODevice::Append))
        return fault;
    const qint64 before = file.size();
    QByteArray bytes;
    for (const QString &item : items)
        bytes += item.toUtf8() + "\r\n";
    if (file.write(bytes) == bytes.size() && file.flush())
        return {};
    file.resize(before);
    return fault;
}
