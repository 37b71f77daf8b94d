#include "engine/EngineResources.h"

#include <QFile>

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
