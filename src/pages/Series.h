// A numbered series of addresses: pictures of a gallery, pages of a listing. One number of the address changes, known
// by its position among the address's numbers (the second number is number 2 wherever it stands). Works on text alone.
#pragma once

#include <QString>

class Series
{
  public:
    /// So many numbers of an address can be chosen from.
    static constexpr qsizetype MostPositions = 9;
    /// No run takes more addresses.
    static constexpr qint64 LongestRun = 5001;

    Series(QString address, qsizetype position) : mAddress(std::move(address)), mPosition(position) {}

    [[nodiscard]] const QString &address() const { return mAddress; }
    [[nodiscard]] qsizetype position() const { return mPosition; }
    /// The digits that change; "" when the address has no number at the position.
    [[nodiscard]] QString number() const;

    /// How many addresses a run takes from here: as many as the digits of the number can count from 1 (9, 99, 999), at
    /// most 5,001; where the number stands now is of no account. 0 without a number.
    [[nodiscard]] qint64 lengthOfRun() const;

    /// The next address: the number is `step` (a whole number, as text) higher and keeps its width as long as it fits.
    /// An empty address where there is no such number or no such step.
    [[nodiscard]] Series next(QStringView step) const;

    /// The address with another number, filled up with zeros to the width of the old one. An address without any
    /// number stays as it is; one with fewer numbers than the position says becomes empty.
    [[nodiscard]] Series withNumber(QStringView number) const;

    /// True when both differ in their number alone, whether "http://" stands in front or not.
    [[nodiscard]] bool isSameAs(const Series &other) const;

    bool operator==(const Series &) const = default;

  private:
    QString mAddress;
    qsizetype mPosition;
};

/// How series are chosen and remembered.
namespace SeriesRules {
/// The address as it is remembered: without "http://" in front, in whatever case.
[[nodiscard]] QString storedUrl(const QString &address);

/// How many numbers of `address` can change: 0 for what is no link. It may be more than can be chosen from.
[[nodiscard]] qsizetype countNumbers(const QString &address);

/// What a remembered series says, from the texts of its row. What is no number counts as 0, a step of 0 as 1.
struct Row
{
    qint64 start = 0;
    qint64 position = 0;
    qint64 step = 1;
    bool operator==(const Row &) const = default;
};
[[nodiscard]] Row row(QStringView start, QStringView position, QStringView step);

/// What there is in an address to start a series with.
enum class Start { NoLink, NoNumber, NoPosition, TooFewNumbers, TooLarge, Found };

/// Whether the number at `position` (below 1: none is chosen) of `address` can be the first one of a series, in a box
/// of `mostDigits` digits. The reasons against it are tested in the order of their list.
[[nodiscard]] Start startIn(const QString &address, qsizetype position, qsizetype mostDigits);
} // namespace SeriesRules
