// One download from its address to a file or a text: what both ways of fetching have in common.
#pragma once

#include "transfer/Transfers.h"

/// What has become of a download.
struct Download
{
    QString content; ///< what came, where no target was given
    QString file;    ///< the path of the file that was made, "" when none was
    QString refusal; ///< why there is neither, in words; "" when there is one
    qint64 size = 0; ///< bytes that came
    double seconds = 0;
};

struct DownloadOrder
{
    TransferRequest request;
    QString target;     ///< folder and name; "" asks for the content as text
    qint64 atLeast = 0; ///< bytes that the content must have
    bool mayBeEmpty = true;
};

/// Carries `order` out and tells in `result` what has become of it, also when it throws. Too little content and a
/// cancellation are refusals and no errors. Throws RuntimeError, TransferError among them.
void download(Transfers &transfers, const DownloadOrder &order, const Transfers::StateTeller &tell, Download &result);
