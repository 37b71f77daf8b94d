// Where the parts of the program lie that stand in files of their own: helper programs and what is loaded when needed.
#pragma once

#include <QFunctionPointer>
#include <QString>

namespace cUtility {
/// The path of the part of this name: beside the running program or, installed, in the folder for what no user starts.
/// Works before there is an application object. A RuntimeError that names both places where it is in neither.
[[nodiscard]] QString programPart(const QString &name);
/// The same for a program in the folder `own`.
[[nodiscard]] QString programPart(const QString &name, const QString &own);
/// What the part of this name, which is loaded for it and stays, offers as `function`. A RuntimeError where it cannot
/// be loaded, or offers nothing of that name.
[[nodiscard]] QFunctionPointer functionOfPart(const QString &name, const char *function);
} // namespace cUtility
