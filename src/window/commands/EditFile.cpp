#include "window/commands/EditFile.h"

#include "util/Errors.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

using namespace Qt::StringLiterals;

void WriteEditFile(const QString &text, const QString &editor, Desktop &desktop)
{
    const QString path = QDir::current().filePath(u"TXTempF.txt"_s);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        throw RuntimeError(ErrorNumber::PathAccessError, u"Path/File access error"_s);
    const QFileInfo program(editor);
    if (!program.isFile() || !program.isExecutable() || !QProcess::startDetached(editor, {path}))
        desktop.open(path);
}
