// Rows as a spreadsheet. Cells are texts, numbers and dates, never formulas; a sheet that is full goes on in a next
// one.
#include "data/NewFile.h"
#include "data/RowWriters.h"
#include "util/Errors.h"

#include <QDateTime>
#include <QFileInfo>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {
constexpr lxw_row_t rowsOfSheet = LXW_ROW_MAX; // the heads are one of them
constexpr qsizetype longestText = 32'767, longestSheetName = 31;
constexpr int firstYear = 1900;

[[noreturn]] void fail(lxw_error code)
{
    throw RuntimeError(ErrorNumber::DeviceIoError, QString::fromUtf8(lxw_strerror(code)));
}

void check(lxw_error code)
{
    if (code != LXW_NO_ERROR)
        fail(code);
}

/// At most as long as a cell takes; a pair of surrogates is not split.
QString cutForCell(const QString &text)
{
    return text.left(text[longestText - 1].isHighSurrogate() ? longestText - 1 : longestText);
}

QByteArray asCellText(QString text)
{
    return text.replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter)).toUtf8();
}

/// The library's book, which is closed at its end even if nobody has asked for it.
class Book
{
  public:
    explicit Book(const QString &path)
        : mPath(QFile::encodeName(path)), mFolder(QFile::encodeName(QFileInfo(path).absolutePath()))
    {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        options.tmpdir = mFolder.data();
        options.use_zip64 = LXW_TRUE;
        mBook = workbook_new_opt(mPath.constData(), &options);
        if (mBook == nullptr)
            fail(LXW_ERROR_MEMORY_MALLOC_FAILED);
    }
    ~Book()
    {
        if (mBook != nullptr)
            workbook_close(mBook);
    }
    Q_DISABLE_COPY_MOVE(Book)

    [[nodiscard]] lxw_workbook *get() const { return mBook; }
    void close() { check(workbook_close(std::exchange(mBook, nullptr))); }

  private:
    QByteArray mPath, mFolder;
    lxw_workbook *mBook = nullptr;
};

class SpreadsheetWriter : public RowWriter
{
  public:
    SpreadsheetWriter(const QString &path, const QString &table, const DataColumns &columns)
        : mTable(table), mColumns(columns), mFile(path), mBook(mFile.placeUntilComplete())
    {
        mDay = workbook_add_format(mBook.get());
        format_set_num_format(mDay, "yyyy-mm-dd");
        mMoment = workbook_add_format(mBook.get());
        format_set_num_format(mMoment, "yyyy-mm-dd hh:mm:ss");
        mHead = workbook_add_format(mBook.get());
        format_set_bold(mHead);
        beginSheet();
    }

    void row(const DataRow &values) override
    {
        if (mRow == rowsOfSheet)
            beginSheet();
        for (std::size_t i = 0; i < values.size(); ++i)
            cell(static_cast<lxw_col_t>(i), mColumns[i], values[i]);
        ++mRow;
    }

    void complete() override { mBook.close(); }
    void finish() override { mFile.commit(); }

    [[nodiscard]] qint64 cutTexts() const override { return mCut; }

  private:
    void beginSheet()
    {
        const QString number = ++mSheets > 1 ? u" %1"_s.arg(mSheets) : QString();
        const QString name = mTable.left(longestSheetName - number.size()) + number;
        mSheet = workbook_add_worksheet(mBook.get(), name.toUtf8().constData());
        if (mSheet == nullptr)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall, u"No name of a sheet: "_s + name);
        mRow = 0;
        for (std::size_t i = 0; i < mColumns.size(); ++i)
            text(static_cast<lxw_col_t>(i), mColumns[i].name, mHead);
        worksheet_freeze_panes(mSheet, 1, 0);
        mRow = 1;
    }

    void text(lxw_col_t column, const QString &text, lxw_format *format = nullptr)
    {
        if (text.isEmpty())
            return;
        const bool tooLong = text.size() > longestText;
        mCut += tooLong ? 1 : 0;
        check(worksheet_write_string(mSheet, mRow, column, asCellText(tooLong ? cutForCell(text) : text).constData(),
                                     format));
    }

    void cell(lxw_col_t place, const DataColumn &column, const QVariant &value)
    {
        const bool number = value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
        if (number)
            check(worksheet_write_number(mSheet, mRow, place, value.toDouble(), nullptr));
        else if (!column.isDate() || !date(place, value.toString()))
            text(place, Cells::text(column, value));
    }

    /// False for a date that a spreadsheet has not.
    [[nodiscard]] bool date(lxw_col_t place, const QString &stored)
    {
        const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
        if (!moment.isValid() || moment.date().year() < firstYear)
            return false;
        const QTime time = moment.time();
        lxw_datetime written{moment.date().year(), moment.date().month(), moment.date().day(),
                             time.hour(),          time.minute(),         double(time.second())};
        lxw_format *const format = time == QTime(0, 0) ? mDay : mMoment;
        check(worksheet_write_datetime(mSheet, mRow, place, &written, format));
        return true;
    }

    QString mTable;
    DataColumns mColumns;
    NewFile mFile;
    Book mBook;
    lxw_format *mDay = nullptr, *mMoment = nullptr, *mHead = nullptr;
    lxw_worksheet *mSheet = nullptr;
    lxw_row_t mRow = 0;
    int mSheets = 0;
    qint64 mCut = 0;
};
} // namespace

std::unique_ptr<RowWriter> RowWriters::spreadsheet(const QString &path, const QString &table,
                                                   const DataColumns &columns)
{
    return std::make_unique<SpreadsheetWriter>(path, table, columns);
}
