#pragma once

#include <QString>

#include "FileTransfer.h"

/// What is said about files before and after something is done with them.
namespace FileQuestions {

/// "3 files and 1 folder"
QString countText(int files, int folders);
/// "Delete 3 files and 1 folder with everything in it from the instrument?"
QString deleteText(int files, int folders, const QString &place);
/// A transfer's end in one sentence.
QString summaryText(const TransferSummary &summary);
/// A line for each failure; empty when there was none.
QString failureLines(const TransferSummary &summary);
/// "about 3 minutes left"; empty when it is not known.
QString remainingText(std::chrono::seconds remaining);

} // namespace FileQuestions
