#include "engine/EngineResources.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

// The linker keeps the files of a static library only when this is called, outside of any namespace.
static void keepResources()
{
    Q_INIT_RESOURCE(engine);
}

QByteArray engineResource(const QString &name)
{
    keepResources();
    QFile file(QStringLiteral(":/engine/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("No resource %s", qPrintable(name)); // a fault of the build
    return file.readAll();
}

const QString &pageReader()
{
    static const QString expression =
        "(globalThis[Symbol.for('reader')] ||= "_L1 + QString::fromUtf8(engineResource(u"js/reader.js"_s)) + "\n)"_L1;
    return expression;
}
