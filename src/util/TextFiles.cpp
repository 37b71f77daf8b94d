#include "util/TextFiles.h"

#include "util/AddressList.h"
#include "util/Ansi.h"
#include "util/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringBuilder>
#include <QStringDecoder>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView LineEnd = u"\r\n";

QString decoded(const QByteArray &bytes)
{
    const std::optional<QStringConverter::Encoding> marked = QStringConverter::encodingForData(bytes);
    // Stateless: an unfinished character at the end is an error, not the beginning of a next piece.
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8), QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() && !marked ? Ansi::decode(bytes) : text;
}

QList<QStringView> trimmedLines(QStringView text)
{
    QList<QStringView> lines = text.split(LineEnd);
    std::transform(lines.begin(), lines.end(), lines.begin(), cUtility::Trim);
    return lines;
}

struct DelimiterFault
{
    QString file;
    qsizetype lineNumber;
    QStringView line;
    QString delimiter;
    qsizetype count;
    qsizetype expected;
};

QString report(const DelimiterFault &fault)
{
    constexpr qsizetype shownOfLine = 20;
    const QStringList lines{fault.count < fault.expected ? u"Insufficient Delimiters!"_s : u"Excessive Delimiters!"_s,
                            u"File: "_s + fault.file,
                            u"Line: "_s + QString::number(fault.lineNumber),
                            u" : "_s % fault.line.first(std::min(fault.line.size(), shownOfLine)) % u"...",
                            u"Delimiter: |"_s + fault.delimiter,
                            u"Delimiter Count: "_s + QString::number(fault.count),
                            u"Expected Delimiter Count: "_s + QString::number(fault.expected),
                            u"Difference: "_s + QString::number(std::abs(fault.count - fault.expected)),
                            u"Delimiter Locations: "_s +
                                cUtility::DelimiterLocationsInString(fault.line, fault.delimiter)};
    return lines.join(LineEnd);
}

bool canBeWritten(const QString &folder)
{
    QFile probe(folder + u"~91345_J.txt"_s);
    return probe.open(QIODevice::WriteOnly | QIODevice::NewOnly) && probe.remove();
}
} // namespace

QString cUtility::LoadTextFile(const QString &file)
{
    QFile source(file);
    if (file.isEmpty() || !source.open(QIODevice::ReadOnly))
        return {};
    return decoded(source.readAll());
}

QStringList cUtility::LoadDelimitedFileAs1DArray(const QString &file, const QString &delimiter)
{
    const QString text = LoadTextFile(Trim(file).toString());
    if (delimiter.isEmpty() || !text.contains(delimiter))
        return emptyList();
    return orEmptyList(text.split(delimiter, Qt::SkipEmptyParts));
}

QList<QStringList> cUtility::LoadDelimitedFileAs2DArray(const QString &file, const QString &delimiter)
{
    const QString text = LoadTextFile(file);
    QList<QStringList> rows;
    for (const QStringView line : trimmedLines(text))
        if (!line.isEmpty())
            rows += delimiter.isEmpty() ? QStringList{line.toString()} : line.toString().split(delimiter);
    return rows;
}

QString cUtility::CheckFileLinesForDelimiter(const QString &file, const QString &delimiter, qsizetype expected)
{
    const QString text = LoadTextFile(file);
    qsizetype lineNumber = 0;
    for (const QStringView line : trimmedLines(text)) {
        ++lineNumber;
        const qsizetype count = CountChar(line, delimiter);
        if (!line.isEmpty() && count != expected)
            return report({file, lineNumber, line, delimiter, count, expected});
    }
    return {};
}

bool cUtility::TestForText(const QString &file)
{
    return !file.isEmpty() && QFileInfo(file).isFile() && QFile(file).open(QIODevice::ReadOnly);
}

QStringList cUtility::CollectFiles(const QString &directory, const QString &extension)
{
    const QDir folder(directory);
    QStringList paths;
    if (directory.isEmpty() || extension.isEmpty())
        return emptyList();
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase))
        if (equalIgnoringCase(QStringView(name).last(std::min(name.size(), extension.size() + 1)), u'.' + extension))
            paths += folder.filePath(name);
    return orEmptyList(paths);
}

QStringList cUtility::driveCandidates()
{
#ifdef Q_OS_WIN
    return {u"C:/"_s, u"D:/"_s, u"E:/"_s, u"F:/"_s, u"G:/"_s, u"H:/"_s};
#else
    return {QDir::homePath() + u'/', QDir::tempPath() + u'/', QDir::rootPath()};
#endif
}

QString cUtility::GetActiveDrive(const QStringList &candidates)
{
    const auto found = std::find_if(candidates.begin(), candidates.end(), canBeWritten);
    return found == candidates.end() ? QString() : *found;
}
