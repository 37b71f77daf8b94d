// The tables of the finders, written out a second time for the plain versions.
#pragma once

#include <QStringList>
#include <utility>

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

/// The states with their area codes.
inline const QList<std::pair<QString, QString>> &areaCodes()
{
    using namespace Qt::StringLiterals;
    static const QList<std::pair<QString, QString>> rows{
        {u"Alabama"_s, u"205,251,256,334"_s},
        {u"Alaska"_s, u"907"_s},
        {u"Arizona"_s, u"480,520,602,623,928"_s},
        {u"Arkansas"_s, u"479,501,870"_s},
        {u"California"_s,
         u"209,213,310,323,341,369,408,415,424,442,510,530,559,562,619,626,627,628,650,657,661,669,707,714,747,"
         u"752,760,764,805,818,831,858,909,916,925,935,949,951"_s},
        {u"Colorado"_s, u"303,719,720,970"_s},
        {u"Connecticut"_s, u"203,475,860,959"_s},
        {u"Delaware"_s, u"302"_s},
        {u"Florida"_s, u"239,305,321,352,354,386,407,561,689,727,754,772,786,813,836,850,861,863,904,941,954"_s},
        {u"Georgia"_s, u"229,404,470,478,678,706,770,912"_s},
        {u"Guam"_s, u"671"_s},
        {u"Hawaii"_s, u"808"_s},
        {u"Idaho"_s, u"208"_s},
        {u"Illinois"_s, u"217,224,282,309,312,331,464,618,630,708,773,815,847,872"_s},
        {u"Indiana"_s, u"219,260,317,574,765,812"_s},
        {u"Iowa"_s, u"319,515,563,641,712"_s},
        {u"Kansas"_s, u"316,620,785,913"_s},
        {u"Kentucky"_s, u"270,327,502,606,859"_s},
        {u"Louisiana"_s, u"225,318,337,504,985"_s},
        {u"Maine"_s, u"207,383"_s},
        {u"Maryland"_s, u"240,280,301,410,443,969"_s},
        {u"Massachusetts"_s, u"339,351,413,508,617,774,781,857,978"_s},
        {u"Michigan"_s, u"231,248,269,278,313,517,546,586,616,679,734,810,906,947,989"_s},
        {u"Minnesota"_s, u"218,320,507,612,651,763,952"_s},
        {u"Mississippi"_s, u"228,601,662"_s},
        {u"Missouri"_s, u"314,417,557,573,636,660,816,975"_s},
        {u"Montana"_s, u"406"_s},
        {u"Nebraska"_s, u"308,402"_s},
        {u"Nevada"_s, u"702,775"_s},
        {u"New Hampshire"_s, u"603"_s},
        {u"New Jersey"_s, u"201,356,551,609,732,848,856,862,908,973"_s},
        {u"New Mexico"_s, u"505,957"_s},
        {u"New York"_s, u"212,315,347,516,518,585,607,631,646,716,718,845,914,917"_s},
        {u"North Carolina"_s, u"252,336,704,828,910,919,980,984"_s},
        {u"North Dakota"_s, u"701"_s},
        {u"Ohio"_s, u"216,234,283,330,380,419,440,513,567,614,740,937"_s},
        {u"Oklahoma"_s, u"405,580,918"_s},
        {u"Oregon"_s, u"503,541,971"_s},
        {u"Pennsylvania"_s, u"215,267,358,412,445,484,570,610,717,724,814,835,878"_s},
        {u"Puerto Rico"_s, u"787,939"_s},
        {u"Rhode Island"_s, u"401"_s},
        {u"South Carolina"_s, u"803,843,864"_s},
        {u"South Dakota"_s, u"605"_s},
        {u"Texas"_s,
         u"210,214,254,281,361,409,430,432,469,512,682,713,737,806,817,830,832,903,915,936,940,956,972,979"_s},
        {u"Utah"_s, u"385,435,801"_s},
        {u"Vermont"_s, u"802"_s},
        {u"Virginia"_s, u"236,276,381,434,540,571,703,757,804"_s},
        {u"Washington"_s, u"206,253,360,425,509,564"_s},
        {u"Washington Dc"_s, u"202"_s},
        {u"West Virgina"_s, u"304"_s},
        {u"Wisconsin"_s, u"262,353,414,420,608,715,920"_s},
        {u"Wyoming"_s, u"307"_s}};
    return rows;
}
} // namespace plain
