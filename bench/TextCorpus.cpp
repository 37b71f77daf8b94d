#include "TextCorpus.h"

#include "util/Text.h"
#include "util/TextFiles.h"

#include <QDir>
#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {
QString corpusFolder()
{
    return qEnvironmentVariable("TRAWLEX_CORPUS", QStringLiteral(TRAWLEX_SOURCE_DIR "/../shared/corpus"));
}

const QStringList &words()
{
    static const QStringList list =
        u"the of and to in a is that for it as was with be by on not he his but at are this have from or had an they "
        u"which one you were all her she there would their we him been has when who will no more if out so up said "
        u"what "
        u"its about than into them can only other time new some could these two may first then do any like my now over "
        u"such our man me even most made after also did many must through years where much your way well down should "
        u"because each just those people how too little state good very make world still own see men work long get here"_s
            .split(u' ');
    return list;
}

/// A word as texts have them: every other one is one of the most common, the rest hardly repeat.
QString madeUpWord(std::mt19937 &engine)
{
    static const QStringList syllables =
        u"ba con de ex fi gra hu in ju ket lo man ner or pla qui ros sta ter un ver wil xen yo zim ance tion ing er al"_s
            .split(u' ');
    if (engine() % 2 == 0)
        return words()[int(engine() % unsigned(words().size()))];
    QString word;
    for (unsigned left = 2 + engine() % 3; left > 0; --left)
        word += syllables[int(engine() % unsigned(syllables.size()))];
    return word;
}

QString madeUpPage(std::mt19937 &engine)
{
    const auto number = [&](int most) { return std::uniform_int_distribution<int>(0, most)(engine); };
    QString page = u"<!DOCTYPE html><html><head><title>Page</title><script>var a=[1,2,30];</script></head><body>\n"_s;
    for (int paragraph = 0; paragraph < 1200; ++paragraph) {
        page +=
            u"<p class=\"text-block item-%1\" style=\"margin:0 %2px\"><a href=\"http://www.site%3.com/p/%4.html\">"_s
                .arg(number(99))
                .arg(number(30))
                .arg(number(400))
                .arg(number(99999));
        for (int word = 8 + number(14); word > 0; --word)
            page += madeUpWord(engine) + u' ';
        page += u"</a></p>\n"_s;
        if (paragraph % 300 == 7)
            page += u"Call (205) 555-%1 or write to desk%2@site%3.com now.\n"_s.arg(1000 + number(8999))
                        .arg(paragraph)
                        .arg(number(400));
    }
    return page + u"</body></html>"_s;
}

QStringList loadedPages()
{
    QStringList pages;
    const QDir folder(corpusFolder());
    for (const QString &name : folder.entryList({u"*.html"_s}, QDir::Files, QDir::Name))
        pages += cUtility::LoadTextFile(folder.filePath(name));
    std::mt19937 engine(7);
    for (int page = 0; pages.size() == page && page < 60; ++page)
        pages += madeUpPage(engine);
    return pages;
}
} // namespace

const QStringList &corpusPages()
{
    static const QStringList pages = loadedPages();
    return pages;
}

QString corpusName()
{
    return QDir(corpusFolder()).exists() ? u"real pages"_s : u"made-up pages"_s;
}

QStringList madeUpAddresses(int count)
{
    std::mt19937 engine(11);
    const QStringList types{u".com"_s, u".org"_s, u".de"_s, u".co.uk"_s, u".net"_s};
    QStringList addresses;
    addresses.reserve(count);
    for (int index = 0; index < count; ++index) {
        const int host = int(engine() % 20000U);
        const int path = int(engine() % 1000000U);
        addresses += index % 5 == 4 ? addresses[int(engine() % unsigned(index))]
                                    : u"http://www.host%1%2/folder/page-%3.html?id=%4"_s.arg(host)
                                          .arg(types[host % types.size()])
                                          .arg(path % 1000)
                                          .arg(path);
    }
    return addresses;
}

QStringList absentTexts(int count, int firstNumber)
{
    QStringList texts;
    for (int number = firstNumber; number < firstNumber + count; ++number) {
        const auto word = [&](int factor, int offset) { return words()[(number * factor + offset) % words().size()]; };
        texts += word(1, 0) + u' ' + word(7, 3) + u' ' + word(3, 50);
    }
    return texts;
}

bool standsInAPage(const QString &text)
{
    const QStringList &pages = corpusPages();
    return std::any_of(pages.begin(), pages.end(),
                       [&](const QString &page) { return cUtility::holdsIgnoringCase(page, text); });
}
