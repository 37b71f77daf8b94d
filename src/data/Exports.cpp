#include "data/Exports.h"

#include "data/NewFile.h"
#include "util/FileNames.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1;

struct RsForm
{
    QLatin1StringView extension;
    DataFormat format;
};
constexpr RsForm rsForms[] = {{".xml"_L1, DataFormat::SavedXml},
                              {".txt"_L1, DataFormat::Comma},
                              {".htm"_L1, DataFormat::HtmlCells},
                              {".txt"_L1, DataFormat::Tab},
                              {".dat"_L1, DataFormat::Saved}};

std::unique_ptr<RowWriter> makeWriter(DataFormat format, const QString &path, const QString &table,
                                      const DataColumns &columns)
{
    switch (format) {
    case DataFormat::Spreadsheet:
        return RowWriters::spreadsheet(path, table, columns);
    case DataFormat::Database:
        return RowWriters::database(path, table, columns);
    default:
        return RowWriters::text(format, path, columns);
    }
}

/// False when the user has cancelled.
bool save(const Recordset &rows, DataFormat format, const QString &path, LongWork &work)
{
    NewFile file(path);
    const bool saved =
        rows.Save(file.placeUntilComplete(),
                  format == DataFormat::Saved ? Recordset::SaveFormat::Binary : Recordset::SaveFormat::Xml,
                  [&work](qint64 row) { return work.goOn(row); });
    if (saved)
        file.commit();
    return saved;
}

/// A file that is to be replaced lies aside until its successor is there, and comes back if there is none.
class Aside
{
  public:
    explicit Aside(const QString &path) : mPath(path), mAside(path + ".replaced"_L1)
    {
        mThere = QFile::exists(path) && QFile::rename(path, mAside);
    }
    ~Aside()
    {
        if (mThere && !(QFile::exists(mPath) ? QFile::remove(mAside) : QFile::rename(mAside, mPath)))
            qWarning("%s: left behind", qUtf8Printable(mAside));
    }
    Q_DISABLE_COPY_MOVE(Aside)

  private:
    QString mPath, mAside;
    bool mThere = false;
};
} // namespace

QString Exports::statement(const ExportSource &source, const ExportKind &kind) const
{
    const bool fewer = source.table == "SiteSummary"_L1 && !kind.longColumns;
    QString text = "SELECT"_L1 + (fewer ? " Index,Date,Title,Url "_L1 : " * "_L1) + "FROM "_L1 + source.table;
    if (source.field.isEmpty() || source.text.isEmpty())
        return text;
    text += " WHERE ["_L1 + source.field + ']'_L1;
    const QStringView plain = QStringView(source.text).trimmed();
    if (source.place == TablePages::Place::Anywhere && Cells::isNumber(plain))
        return text + '='_L1 + plain.toString();
    return text + " LIKE '"_L1 + TablePages::Filter{source.field, source.text, source.place}.pattern() + '\''_L1;
}

/// The rows as a file of that form; what the user is told then.
QString Exports::write(Recordset &rows, DataFormat format, const QString &path, const QString &table)
{
    QString cancelled = u"Export cancelled"_s;
    if (format == DataFormat::Saved || format == DataFormat::SavedXml)
        return save(rows, format, path, mWork) ? path + " written"_L1 : cancelled;
    const auto writer = makeWriter(format, path, table, Cells::columnsOf(rows));
    std::vector<Field> fields;
    for (int column = 0; column < rows.Fields().Count(); ++column)
        fields.push_back(rows.Fields()[column]);
    DataRow values(fields.size());
    for (qint64 done = 0; !rows.Eof(); rows.MoveNext()) {
        if (!mWork.goOn(done++))
            return cancelled;
        std::transform(fields.begin(), fields.end(), values.begin(), [](const Field &field) { return field.Value(); });
        writer->row(values);
    }
    mWork.beside([&writer] { writer->complete(); });
    if (mWork.isCancelled())
        return cancelled;
    writer->finish();
    const QString cut = u", %1 texts cut to the length of a cell"_s.arg(writer->cutTexts());
    return path + " written"_L1 + (writer->cutTexts() > 0 ? cut : QString());
}

bool Exports::exportTable(const ExportSource &source, const ExportKind &kind, const QString &path)
{
    QString told = u"Nothing exported"_s;
    const bool ran = mWork.run("Exporting "_L1 + source.table, [&] {
        guarded(mContext.log, {form, "Sub ExportRecordSet"_L1}, [&] {
            const auto tell = qScopeGuard([&] { mContext.status.UpDateStatus(told); });
            Recordset rows = mDatabase->GetRecordset(statement(source, kind));
            if (rows.isEmpty()) {
                told = u"No records in recordset"_s;
                return;
            }
            try {
                told = write(rows, kind.format, path, source.table);
            } catch (...) {
                told += ": "_L1 + currentError().description();
                throw;
            }
        });
    });
    return ran && told.startsWith(path + " written"_L1);
}

void Exports::ExportRecordSet(int number)
{
    const ExportKind *const kind = ExportKinds::ofNumber(number);
    const QString table = mData.cboDBTables.list(mData.cboDBTables.listIndex());
    if (table.isEmpty() || kind == nullptr) {
        mContext.status.UpDateStatus(u"No recordset is loaded"_s);
        return;
    }
    const QString field = mData.cboDBFields.list(mData.cboDBFields.listIndex());
    const auto place = TablePages::Place(mData.cboDBPlace.listIndex());
    const QString path = cUtility::GetVacantFileSpecs(mPlaces.txtSFDBDir.text() + table + "-0"_L1 + kind->extension);
    if (exportTable({table, field, mData.txtDBQuery.text(), place}, *kind, path) && number == ExportKinds::html &&
        mOpenAfter.isOn())
        mNavigation.OpenSite(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
}

void Exports::CreateHtmlTable(Recordset &rows, const QString &path, bool open)
{
    guarded(mContext.log, {form, "CreateHtmlTable"_L1}, [&] {
        static_cast<void>(write(rows, DataFormat::HtmlLinks, path, {}));
        if (open)
            mNavigation.OpenSite(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    });
}

bool Exports::mayReplace(const QString &path)
{
    return !QFileInfo::exists(path) ||
           mContext.dialogs.ask(u"FILE EXISTS"_s, path + " Exists, overwrite?"_L1, UserDialogs::Icon::Question,
                                UserDialogs::Answer::No) == UserDialogs::Answer::Yes;
}

void Exports::ExportRsToFile(Recordset &oAdoRec, int eExportType, const QString &sExportFilePath)
{
    guarded(mContext.log, {"cAdoMdb"_L1, "Sub ExportRsToFile"_L1}, [&] {
        if (eExportType < 0 || eExportType >= int(std::size(rsForms)))
            throw RuntimeError(ErrorNumber::InvalidProcedureCall, u"Invalid procedure call or argument"_s);
        const RsForm &chosen = rsForms[eExportType];
        const QString path = sExportFilePath.isEmpty() ? "Export"_L1 + chosen.extension : sExportFilePath;
        if (!mayReplace(path))
            return;
        const auto release = qScopeGuard([&] { oAdoRec = Recordset(); });
        const Aside replaced(path);
        static_cast<void>(write(oAdoRec, chosen.format, path, {}));
    });
}
