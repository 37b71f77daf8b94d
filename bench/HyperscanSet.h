// The same looks by the library Hyperscan, to measure our own beside it. Built where the library is there.
#pragma once

#include <QStringList>
#include <memory>

struct hs_database;
struct hs_scratch;

/// Texts that are looked for at once in bytes, the case of A to Z ignored.
class HyperscanSet
{
  public:
    enum class Encoding { Utf16, Utf8 };

    HyperscanSet(const QStringList &texts, Encoding encoding);

    /// True when at least one of the texts stands in `bytes`, which are in the set's encoding.
    [[nodiscard]] bool anyIn(QByteArrayView bytes) const;

    /// The page's own memory.
    [[nodiscard]] static QByteArrayView bytesOf(QStringView page);

  private:
    struct Free
    {
        void operator()(hs_database *database) const;
        void operator()(hs_scratch *scratch) const;
    };
    Encoding mEncoding;
    std::unique_ptr<hs_database, Free> mDatabase;
    std::unique_ptr<hs_scratch, Free> mScratch;
};
