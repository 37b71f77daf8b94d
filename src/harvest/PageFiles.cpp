#include "harvest/PageFiles.h"

#include "util/Errors.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr int asHtml = 0;
constexpr qint64 newFile = -1;
} // namespace

QString PageFiles::path(const QString &folder) const
{
    const auto extension = mOutputs.cboANSaveType.listIndex() == asHtml ? ".htm"_L1 : ".txt"_L1;
    QString name = folder + "Page-1"_L1 + extension;
    if (mOutputs.chkPutInOneFile.value() == 0) {
        while (QFile::exists(name))
            name = cUtility::Incr(name, 4, true, 1, u"", u"1", u"", false);
    }
    return name;
}

QByteArray PageFiles::inFile(const QString &data, bool atBegin) const
{
    // The mark tells every reader that markup is UTF-8, whatever encoding the page itself names. Plain text has none.
    const bool marked = atBegin && mOutputs.cboANSaveType.listIndex() == asHtml;
    return (marked ? "\xEF\xBB\xBF" : "") + data.toUtf8() + "\r\n";
}

bool PageFiles::SaveFile(PageReading &page)
{
    mFault = StoreFault::None;
    mLast.clear();
    return guardedResult(mLog, {"frmSearch"_L1, "Sub SaveFile"_L1}, false, [&](bool &saved) {
        const QString data = mData.GetPageData(page, PageData::Target::File);
        if (data.isEmpty())
            return;
        const QString folder = cUtility::Trim(mPlaces.txtSFMNDir.text()).toString();
        QFile file(path(folder));
        const qint64 before = file.exists() ? file.size() : newFile;
        if (!file.open(QIODevice::Append, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
            fail(folder, file, StoreFault::ReadOnly);
        mLast = file.fileName();
        mSizeBefore = before;
        const QByteArray bytes = inFile(data, file.size() == 0);
        if (file.write(bytes) != bytes.size() || !file.flush())
            fail(folder, file, StoreFault::Failed);
        saved = true;
    });
}

/// What the folder itself says comes before `otherwise`.
void PageFiles::fail(const QString &folder, const QFileDevice &file, StoreFault otherwise)
{
    const StoreFault ofFolder = StoreFaults::ofFolder(folder);
    mFault = ofFolder == StoreFault::None ? otherwise : ofFolder;
    const QString reason = file.errorString();
    takeBack();
    throw RuntimeError(ErrorNumber::PathAccessError, reason);
}

void PageFiles::takeBack()
{
    if (const QString file = std::exchange(mLast, {}); file.isEmpty())
        return;
    else if (mSizeBefore == newFile)
        QFile::remove(file);
    else
        QFile::resize(file, mSizeBefore);
}
