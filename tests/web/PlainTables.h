// The tables of the address routines, written out a second time for the plain versions.
#pragma once

#include <QStringList>

namespace plain {
inline const QStringList &serverTypes()
{
    static const QStringList types = [] {
        QStringList list;
        for (const char *type :
             {".com", ".edu", ".gov", ".net", ".org", ".az",  ".be",  ".bg", ".bh",  ".bm", ".bo", ".br", ".bs", ".bs",
              ".ca",  ".ca",  ".ch",  ".cl",  ".cn",  ".co",  ".ae",  ".cr", ".cy",  ".cz", ".de", ".dk", ".do", ".ec",
              ".am",  ".ee",  ".eg",  ".es",  ".fi",  ".fj",  ".fr",  ".gi", ".god", ".ar", ".gr", ".hk", ".hn", ".hr",
              ".hu",  ".id",  ".ie",  ".il",  ".in",  ".int", ".is",  ".it", ".jo",  ".jp", ".ke", ".kr", ".kw", ".ky",
              ".lb",  ".lk",  ".lt",  ".lu",  ".lv",  ".mc",  ".mil", ".mk", ".mt",  ".mv", ".mx", ".my", ".na", ".nc",
              ".at",  ".nl",  ".no",  ".np",  ".nz",  ".au",  ".pe",  ".ph", ".pk",  ".pl", ".pt", ".py", ".qa", ".ro",
              ".ru",  ".sa",  ".se",  ".sg",  ".si",  ".sk",  ".su",  ".sz", ".th",  ".tr", ".tt", ".tw", ".ua", ".uk",
              ".us",  ".uy",  ".ve",  ".ws",  ".yu",  ".za",  ".tk",  ".cx"})
            list += QString::fromLatin1(type);
        return list;
    }();
    return types;
}

inline const QStringList &protocolTypes()
{
    static const QStringList types{QStringLiteral("http://"), QStringLiteral("https://"), QStringLiteral("ftp://"),
                                   QStringLiteral("file:///"), QStringLiteral("mailto:")};
    return types;
}
} // namespace plain
