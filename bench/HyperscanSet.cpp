#include "HyperscanSet.h"

#include <hs.h>

namespace {
void require(hs_error_t code)
{
    if (code != HS_SUCCESS)
        qFatal("Hyperscan: error %d", code);
}

/// Ends the scan, unless the hit begins in the middle of a unit.
int take(unsigned, unsigned long long, unsigned long long end, unsigned, void *unitSize)
{
    return end % *static_cast<const unsigned long long *>(unitSize) == 0 ? 1 : 0;
}
} // namespace

HyperscanSet::HyperscanSet(const QStringList &texts, Encoding encoding) : mEncoding(encoding)
{
    std::vector<QByteArray> bytes;
    std::vector<const char *> starts;
    std::vector<std::size_t> lengths;
    for (const QString &text : texts)
        bytes.push_back(encoding == Encoding::Utf8 ? text.toUtf8() : bytesOf(text).toByteArray());
    for (const QByteArray &text : bytes) {
        starts.push_back(text.constData());
        lengths.push_back(std::size_t(text.size()));
    }
    const std::vector<unsigned> flags(bytes.size(), HS_FLAG_CASELESS);
    hs_database_t *database = nullptr;
    hs_compile_error_t *error = nullptr;
    require(hs_compile_lit_multi(starts.data(), flags.data(), nullptr, lengths.data(), unsigned(bytes.size()),
                                 HS_MODE_BLOCK, nullptr, &database, &error));
    mDatabase.reset(database);
    hs_scratch_t *scratch = nullptr;
    require(hs_alloc_scratch(database, &scratch));
    mScratch.reset(scratch);
}

bool HyperscanSet::anyIn(QByteArrayView bytes) const
{
    unsigned long long unitSize = mEncoding == Encoding::Utf8 ? 1 : sizeof(char16_t);
    const hs_error_t code =
        hs_scan(mDatabase.get(), bytes.data(), unsigned(bytes.size()), 0, mScratch.get(), take, &unitSize);
    if (code != HS_SCAN_TERMINATED)
        require(code);
    return code == HS_SCAN_TERMINATED;
}

QByteArrayView HyperscanSet::bytesOf(QStringView page)
{
    return {reinterpret_cast<const char *>(page.utf16()), page.size() * qsizetype(sizeof(char16_t))};
}

void HyperscanSet::Free::operator()(hs_database *database) const
{
    hs_free_database(database);
}

void HyperscanSet::Free::operator()(hs_scratch *scratch) const
{
    hs_free_scratch(scratch);
}
