// Opens bytes as a saved recordset, and as a database to import from: a file that is refused is refused with an error,
// one that opens can be read to its end, cell by cell. The bytes are a whole file, or changes to a good one: without a
// good one to begin with nothing would come past the head of the file.
#include "store/DatabaseHolder.h"
#include "store/Schema.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {
class QuietLog : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64, const QString &, const QString &, const QString &) override {}
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll();
}

/// The good files, made once.
struct World
{
    World()
    {
        database.setDatabasePath(folder.filePath(u"good.mdb"_s));
        declareSchema(database);
        if (!database.CreateDatabase(true))
            std::abort();
        for (int row = 0; row < 40; ++row)
            static_cast<void>(database.AddRecord(
                {u"Address"_s + rowMarker + u"ann%1@b.com"_s.arg(row), u"SSIndex"_s + rowMarker + u"5"_s}, -1,
                u"EmailAddress"_s, rowMarker));
        Recordset rows = database.GetRecordset(u"SELECT * FROM EmailAddress"_s);
        rows.Save(folder.filePath(u"good.dat"_s), Recordset::SaveFormat::Binary);
        rows.Save(folder.filePath(u"good.xml"_s), Recordset::SaveFormat::Xml);
        rows = Recordset();
        for (const QString &name : {u"good.dat"_s, u"good.xml"_s})
            good.append(bytesOf(folder.filePath(name)));
    }
    QTemporaryDir folder;
    QuietLog log;
    cAdoMdb database{log};
    QList<QByteArray> good;
};

void walk(Recordset rows)
{
    const Fields fields = rows.Fields();
    for (; !rows.Eof(); rows.MoveNext()) {
        for (int column = 0; column < fields.Count(); ++column)
            static_cast<void>(fields[column].Value());
    }
}

/// Bytes in threes: a place in two, what stands there in the third.
QByteArray changed(QByteArray file, QByteArrayView changes)
{
    for (qsizetype i = 0; i + 2 < changes.size(); i += 3) {
        const auto place = qsizetype(quint8(changes[i])) * 256 + quint8(changes[i + 1]);
        file[place % file.size()] = changes[i + 2];
    }
    return file;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static World world;
    if (size == 0)
        return 0;
    const QByteArrayView rest(reinterpret_cast<const char *>(bytes) + 1, qsizetype(size) - 1);
    const qsizetype kind = bytes[0] % (world.good.size() + 1);
    const bool whole = kind == world.good.size();
    const bool imported = kind == 0; // other programs' files have a reader of their own
    const QString path = world.folder.filePath(u"hostile"_s);
    for (const auto &ending : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(path + ending);
    write(path, whole ? rest.toByteArray() : changed(world.good[kind], rest));
    try {
        walk(Recordset::open(path));
    } catch (const RuntimeError &) {
        // What a user is told.
    }
    try {
        const QString wanted = u"SELECT * FROM Recordset"_s;
        if (const Recordset rows = imported ? world.database.GetRecordSetFromExternalDB(path, wanted) : Recordset();
            rows.isOpen())
            walk(rows);
    } catch (const RuntimeError &) {
    }
    return 0;
}
