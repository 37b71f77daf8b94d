#include "ui/windows/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

QString QtClipboard::text() const
{
    return QGuiApplication::clipboard()->text();
}

void QtClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}
