#include "store/TableListFile.h"
#include "store/AdoErrors.h"
#include "util/Ansi.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {
bool isBlank(const QString &line)
{
    return line.count(u' ') == line.size();
}

QStringList linesOf(QStringView text)
{
    static const QRegularExpression lineEnd(u"\r\n|\r|\n"_s);
    QStringList lines = text.toString().split(lineEnd);
    lines.removeIf(isBlank);
    return lines;
}
} // namespace

std::vector<QStringList> readTableListFile(const QString &fileName)
{
    QFile file(fileName);
    if (fileName.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    const QString text = Ansi::decode(file.readAll());
    qsizetype open = text.indexOf(u'[');
    if (open < 0 || text.indexOf(u']', open) < 0)
        return {};
    std::vector<QStringList> tables;
    while (open >= 0) {
        const qsizetype close = text.indexOf(u']', open);
        if (close < 0)
            throw AdoError::error(ErrorNumber::InvalidProcedureCall);
        const qsizetype next = text.indexOf(u'[', close);
        // The character right behind the bracket belongs to the line end and is not looked at.
        const qsizetype start = std::min(next < 0 ? close + 1 : close + 2, text.size());
        const qsizetype end = next < 0 ? text.size() : std::max(next, start);
        if (const QString name = text.mid(open + 1, close - open - 1); !name.isEmpty())
            tables.push_back(QStringList{name} + linesOf(QStringView(text).sliced(start, end - start)));
        open = next;
    }
    return tables;
}
