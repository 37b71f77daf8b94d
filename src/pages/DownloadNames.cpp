#include "pages/DownloadNames.h"

#include "pages/Addresses.h"
#include "util/FileNames.h"
#include "util/Text.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using cUtility::FilePart;

namespace {
constexpr QStringView UrlSeparator = u"/";

/// What the language of the rules takes for a number when it is asked for a whole text: with sign, thousands and
/// exponent, in brackets, in money, hexadecimal and octal.
bool isNumeric(const QString &text)
{
    static const QRegularExpression number(
        u"^ *(?:"
        "[+-]? *\\$? *(?:[0-9][0-9,]*\\.?[0-9]*|\\.[0-9]+)(?:[eEdD][+-]?[0-9]+)? *[+-]?"
        "|\\( *\\$? *(?:[0-9][0-9,]*\\.?[0-9]*|\\.[0-9]+)(?:[eEdD][+-]?[0-9]+)? *\\)"
        "|&[hH][0-9A-Fa-f]+|&[oO]?[0-7]+"
        ") *\\z"_s);
    return number.match(text).hasMatch();
}

QString shortExtension(const QString &extension)
{
    const QString lower = cUtility::lowered(extension);
    if (lower == ".jpeg"_L1)
        return u".jpg"_s;
    return lower == ".html"_L1 ? u".htm"_s : extension;
}
} // namespace

QString DownloadNames::fileName(const QString &url)
{
    constexpr qsizetype shortest = 5;
    if (url.size() < shortest)
        return {};
    const bool isFour = url[url.size() - 5] == u'.';
    const bool isThree = url[url.size() - 4] == u'.';
    if (!isFour && !isThree)
        return {};
    const QString name = cUtility::filePart(FilePart::Name, url, UrlSeparator).toString();
    const QString extension = cUtility::filePart(FilePart::DotExtension, url, UrlSeparator).toString();
    if (isFour)
        return name + shortExtension(extension);
    const bool isNumbered = isNumeric(name);
    const QString server = isNumbered ? cIEText::GetServerFromUrl(url, {true, false, false}) : QString();
    return cUtility::StripToLettersAndNumbers(server) + name + extension;
}
