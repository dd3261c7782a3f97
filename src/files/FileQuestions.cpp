#include "FileQuestions.h"

#include <QCoreApplication>

#include "FileNames.h"
#include "QvexFileModel.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("FileQuestions", text);
}

/// Languages with more than one plural choose by the number.
QString say(const char *plural, int count)
{
    return QCoreApplication::translate("FileQuestions", plural, nullptr, count).arg(count);
}

QString filesText(int files)
{
    return files == 1 ? say(QT_TRANSLATE_NOOP("FileQuestions", "1 file"))
                      : say(QT_TRANSLATE_N_NOOP("FileQuestions", "%1 files"), files);
}

QString foldersText(int folders)
{
    return folders == 1 ? say(QT_TRANSLATE_NOOP("FileQuestions", "1 folder"))
                        : say(QT_TRANSLATE_N_NOOP("FileQuestions", "%1 folders"), folders);
}

QString outcomeText(const TransferSummary &summary)
{
    switch (summary.outcome) {
    case TransferSummary::Outcome::Done:
        return say(QT_TRANSLATE_NOOP("FileQuestions", "Done"));
    case TransferSummary::Outcome::Failed:
        return say(QT_TRANSLATE_NOOP("FileQuestions", "Not everything was copied"));
    case TransferSummary::Outcome::Cancelled:
        return say(QT_TRANSLATE_NOOP("FileQuestions", "Cancelled"));
    }
    return {};
}

} // namespace

namespace FileQuestions {

QString countText(int files, int folders)
{
    if (folders == 0) {
        return filesText(files);
    }
    return files == 0 ? foldersText(folders)
                      : say(QT_TRANSLATE_NOOP("FileQuestions", "%1 and %2"))
                            .arg(filesText(files), foldersText(folders));
}

QString deleteText(int files, int folders, const QString &place)
{
    const QString what = countText(files, folders);
    if (folders == 0) {
        return say(QT_TRANSLATE_NOOP("FileQuestions", "Delete %1 from %2?")).arg(what, place);
    }
    return (folders == 1 ? say(
                QT_TRANSLATE_NOOP("FileQuestions", "Delete %1 with everything in it from %2?"))
                         : say(QT_TRANSLATE_NOOP("FileQuestions",
                                                 "Delete %1 with everything in them from %2?")))
        .arg(what, place);
}

QString summaryText(const TransferSummary &summary)
{
    QStringList parts {
        say(QT_TRANSLATE_NOOP("FileQuestions", "%1 copied (%2)"))
            .arg(filesText(summary.carried), QvexFileModel::sizeText(summary.bytes))};
    if (summary.skipped > 0) {
        parts += say(QT_TRANSLATE_NOOP("FileQuestions", "%1 skipped")).arg(summary.skipped);
    }
    if (!summary.failures.isEmpty()) {
        parts += say(QT_TRANSLATE_NOOP("FileQuestions", "%1 failed")).arg(summary.failures.size());
    }
    if (summary.notTried > 0) {
        parts += say(QT_TRANSLATE_NOOP("FileQuestions", "%1 not tried")).arg(summary.notTried);
    }
    return outcomeText(summary) + u": "_s + parts.join(u", "_s) + u'.';
}

QString failureLines(const TransferSummary &summary)
{
    QStringList lines;
    for (const TransferSummary::Failure &failure : summary.failures) {
        lines += FileNames::shown(failure.path) + u": "_s + failure.reason;
    }
    return lines.join(u'\n');
}

QString remainingText(std::chrono::seconds remaining)
{
    const auto seconds = remaining.count();
    if (seconds < 0) {
        return {};
    }
    if (seconds < 60) {
        return say(QT_TRANSLATE_NOOP("FileQuestions", "%1 s left")).arg(seconds);
    }
    if (seconds < 3600) {
        return say(QT_TRANSLATE_NOOP("FileQuestions", "%1 min left")).arg((seconds + 59) / 60);
    }
    return say(QT_TRANSLATE_NOOP("FileQuestions", "%1 h %2 min left"))
        .arg(seconds / 3600)
        .arg(seconds % 3600 / 60);
}

} // namespace FileQuestions
