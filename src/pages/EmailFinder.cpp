#include "pages/EmailFinder.h"

#include "pages/Addresses.h"
#include "pages/ServerTypes.h"
#include "util/AddressList.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <algorithm>
#include <bitset>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
constexpr Place charPlace{"cIEObject"_L1, "Function CheckForInvalidEmailChar"_L1};

/// True for what may stand in an address, given in any case.
bool isAddressUnit(char16_t unit)
{
    const char16_t lower = cUtility::lowerUnit(unit);
    return (lower >= u'a' && lower <= u'z') || cUtility::isDigit(lower) || lower == u'@' || lower == u'-' ||
           lower == u'.' || lower == u'_';
}

void reportEmptyCharacter(ErrorReceiver &log)
{
    log.ErrorLogger(ErrorNumber::InvalidProcedureCall, u"Invalid procedure call or argument"_s, charPlace.module,
                    charPlace.location);
}

/// The walk of one call over its text. Positions count from 1, as the limits of the walk do.
class EmailWalk
{
  public:
    EmailWalk(QStringView text, QStringView searchText, ErrorReceiver *log)
        : mText(text), mSearchText(searchText), mLog(log)
    {
    }

    QStringList run()
    {
        constexpr int passLimit = 1000;
        for (int pass = 1; pass < passLimit; ++pass) {
            qsizetype hit = nextHit();
            if (hit == mResume) {
                mResume += shiftOfResume;
                hit += shiftOfHit;
            }
            // The limit is tested before the hit of 0, and both end the walk.
            if (hit == 0)
                break;
            reportLooksBehindTheEnd(hit);
            findEnds(hit);
            takeCandidate();
            if (mEnd > 0)
                mResume = mEnd;
        }
        return orEmptyList(mFound);
    }

  private:
    static constexpr qsizetype shiftOfResume = 5;
    static constexpr qsizetype shiftOfHit = 15;
    static constexpr qsizetype reachOfTextBegin = 35;

    [[nodiscard]] char16_t unitAt(qsizetype position) const { return mText[position - 1].unicode(); }

    /// The first hit at or behind the resume position; 0 for none. From one look to the next that position never
    /// goes back, so a place that is known is not looked for again.
    qsizetype nextHit()
    {
        if (!mNextHit || (*mNextHit != 0 && *mNextHit < mResume))
            mNextHit = cUtility::InStr(mResume, mText, mSearchText);
        return *mNextHit;
    }

    void reportLooksBehindTheEnd(qsizetype hit)
    {
        for (qsizetype position = hit; mLog != nullptr && position > mText.size(); --position)
            reportEmptyCharacter(*mLog);
    }

    /// Sets the run of address characters around `hit`: the refused positions on both sides of it, 0 and one behind the
    /// text's end where there are none. Both are `hit` itself when what stands there is refused.
    void findRun(qsizetype hit)
    {
        if (mRunBefore < hit && hit < mRunBehind)
            return;
        mRunBefore = std::min(hit, mText.size());
        while (mRunBefore >= 1 && isAddressUnit(unitAt(mRunBefore)))
            --mRunBefore;
        mRunBehind = hit;
        while (mRunBehind <= mText.size() && isAddressUnit(unitAt(mRunBehind)))
            ++mRunBehind;
    }

    void findEnds(qsizetype hit)
    {
        findRun(hit);
        if (mRunBefore >= 1)
            mStart = mRunBefore == 1 ? 1 : mRunBefore + 1; // a refused character at position 1 stands inside
        else if (hit < reachOfTextBegin)
            mStart = 1;
        if (mRunBehind <= mText.size())
            mEnd = mRunBehind - 1;
        else if (hit <= mText.size() && textEndsInType())
            mEnd = mText.size();
    }

    bool textEndsInType()
    {
        if (!mTextEndsInType)
            mTextEndsInType = cIEText::DoesThisEndInAUrl(mText);
        return *mTextEndsInType;
    }

    void takeCandidate()
    {
        if (mStart == 0 || mStart >= mEnd)
            return;
        const QStringView candidate = mText.sliced(mStart - 1, mEnd - mStart + 1);
        if (!cIEText::DoesThisEndInAUrl(candidate))
            return;
        const bool isLastAgain =
            !mFound.isEmpty() && candidate.size() == mFound.constLast().size() && mLastCandidate == candidate.data();
        mFound += isLastAgain ? mFound.constLast() : candidate.toString();
        mLastCandidate = candidate.data();
    }

    QStringView mText;
    QStringView mSearchText;
    ErrorReceiver *mLog;
    QStringList mFound;
    const QChar *mLastCandidate = nullptr;
    qsizetype mResume = 1;
    // These live for the whole call: a pass that finds no end of its own works with that of an earlier one.
    qsizetype mStart = 0;
    qsizetype mEnd = 0;
    // What is known of the text, so that no part of it is read twice.
    std::optional<qsizetype> mNextHit;
    qsizetype mRunBefore = 0;
    qsizetype mRunBehind = 0;
    std::optional<bool> mTextEndsInType;
};

/// True when a type's last occurrence ends the lower-cased text or stands before a "/".
bool holdsTypeAtItsEnd(QStringView lowerText)
{
    std::bitset<serverTypes.size()> seen;
    const auto isMatch = [&](qsizetype dot, int type) {
        if (type < 0 || seen[size_t(type)])
            return false;
        seen[size_t(type)] = true;
        const QStringView behind = lowerText.sliced(dot + serverTypes[size_t(type)].size());
        return behind.isEmpty() || behind.front() == u'/';
    };
    for (qsizetype dot = lowerText.lastIndexOf(u'.'); dot >= 0;
         dot = dot == 0 ? -1 : lowerText.lastIndexOf(u'.', dot - 1)) {
        const TypesAtDot types = typesAtDot(lowerText.sliced(dot));
        if (isMatch(dot, types.twoLetters) || isMatch(dot, types.threeLetters))
            return true;
    }
    return false;
}

/// What of a lower-cased text without server type may be an address of four numbers: all that stands before the first
/// "/" behind "http://".
QStringView numericPart(QStringView lowerText)
{
    constexpr QStringView http = u"http://";
    const qsizetype slash = lowerText.indexOf(u'/', lowerText.startsWith(http) ? http.size() : 0);
    return slash < 0 ? lowerText : lowerText.first(slash);
}

bool isFourShortNumbers(QStringView text)
{
    constexpr qsizetype numbers = 4;
    constexpr qsizetype mostDigits = 3;
    qsizetype longest = 0;
    qsizetype digits = 0;
    for (const QChar unit : text) {
        digits = cUtility::isDigit(unit.unicode()) ? digits + 1 : 0;
        longest = std::max(longest, digits);
    }
    return longest <= mostDigits && cUtility::countNumbers(text) == numbers;
}
} // namespace

bool cIEText::CheckForInvalidEmailChar(QStringView character, ErrorReceiver *log)
{
    if (character.isEmpty()) {
        if (log != nullptr)
            reportEmptyCharacter(*log);
        return false;
    }
    const char16_t unit = character.front().unicode();
    return !isAddressUnit(unit) || (unit >= u'A' && unit <= u'Z') || unit >= 0x80;
}

QStringList cIEText::CollectEmail(QStringView text, QStringView searchText, ErrorReceiver *log)
{
    return EmailWalk(text, searchText, log).run();
}

cIEText::TextKind cIEText::IsThisEmailOrLink(QStringView text, bool acceptWithoutPrefix)
{
    const QString lowerText = cUtility::lowered(text);
    if (!lowerText.contains(u'.') || lowerText.contains(u'\\'))
        return TextKind::Neither;
    if (!holdsTypeAtItsEnd(lowerText))
        return isFourShortNumbers(numericPart(lowerText)) ? TextKind::Link : TextKind::Neither;
    if (lowerText.contains(u'@'))
        return TextKind::Email;
    const bool hasPrefix = lowerText.startsWith(u"http://") || lowerText.contains(u"www.");
    return acceptWithoutPrefix || hasPrefix ? TextKind::Link : TextKind::Neither;
}
