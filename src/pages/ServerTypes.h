// The tables by which texts are taken for addresses. Their order is part of what they say. Knows nobody.
#pragma once

#include <QStringView>
#include <array>

/// The name endings by which a host is known.
inline constexpr std::array<QStringView, 106> serverTypes{
    u".com", u".edu", u".gov", u".net", u".org", u".az", u".be", u".bg", u".bh", u".bm", u".bo", u".br",
    u".bs",  u".bs",  u".ca",  u".ca",  u".ch",  u".cl", u".cn", u".co", u".ae", u".cr", u".cy", u".cz",
    u".de",  u".dk",  u".do",  u".ec",  u".am",  u".ee", u".eg", u".es", u".fi", u".fj", u".fr", u".gi",
    u".god", u".ar",  u".gr",  u".hk",  u".hn",  u".hr", u".hu", u".id", u".ie", u".il", u".in", u".int",
    u".is",  u".it",  u".jo",  u".jp",  u".ke",  u".kr", u".kw", u".ky", u".lb", u".lk", u".lt", u".lu",
    u".lv",  u".mc",  u".mil", u".mk",  u".mt",  u".mv", u".mx", u".my", u".na", u".nc", u".at", u".nl",
    u".no",  u".np",  u".nz",  u".au",  u".pe",  u".ph", u".pk", u".pl", u".pt", u".py", u".qa", u".ro",
    u".ru",  u".sa",  u".se",  u".sg",  u".si",  u".sk", u".su", u".sz", u".th", u".tr", u".tt", u".tw",
    u".ua",  u".uk",  u".us",  u".uy",  u".ve",  u".ws", u".yu", u".za", u".tk", u".cx"};

/// The server type that file names may look like (".php").
inline constexpr int philippineType = 77;
static_assert(serverTypes[philippineType][1] == QChar(u'p') && serverTypes[philippineType][2] == QChar(u'h'));

inline constexpr std::array<QStringView, 5> protocolTypes{u"http://", u"https://", u"ftp://", u"file:///", u"mailto:"};

/// The Windows-1252 codes that no address holds.
inline constexpr std::array<quint8, 47> refusedUrlCodes{
    0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18,  19,  20,  21,  22, 23,
    24, 25, 26, 27, 28, 29, 30, 31, 32, 36, 60, 62, 64, 91, 92, 93, 94, 96, 123, 124, 125, 127, 128};

/// The server types that begin at a ".": at most one of two letters and one of three (".co" and ".com"), by their first
/// index in the table, -1 for none.
struct TypesAtDot
{
    int twoLetters = -1;
    int threeLetters = -1;
};

/// The types at the beginning of a lower-cased `text`.
[[nodiscard]] TypesAtDot typesAtDot(QStringView text);
