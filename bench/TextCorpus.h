// The texts on which the text core is measured: real pages where a folder of them lies beside the project, made-up ones
// of the same kind elsewhere, and made-up addresses.
#pragma once

#include <QStringList>

/// The markup of all pages. Always the same for the same folder.
[[nodiscard]] const QStringList &corpusPages();

/// Where the pages are from, for the head of the table.
[[nodiscard]] QString corpusName();

/// `count` addresses as lists hold them: hosts repeat, paths mostly differ, one in five stands twice.
[[nodiscard]] QStringList madeUpAddresses(int count);

/// `count` texts of three common words each, so made that hardly a page holds one.
[[nodiscard]] QStringList absentTexts(int count, int firstNumber);

[[nodiscard]] bool standsInAPage(const QString &text);
