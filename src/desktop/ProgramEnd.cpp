#include "desktop/ProgramEnd.h"

#include <QApplication>
#include <QWidget>

void connectEnd(LifeCycle &lifeCycle, const StopSignals &stopSignals)
{
    const auto end = [&lifeCycle] {
        while (QWidget *box = QApplication::activeModalWidget())
            if (!box->close())
                break;
        lifeCycle.end();
    };
    QObject::connect(&stopSignals, &StopSignals::stopRequested, &lifeCycle, end);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &lifeCycle, end, Qt::DirectConnection);
}
