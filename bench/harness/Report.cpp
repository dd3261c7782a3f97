#include "Report.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString verdictText(Row::Verdict verdict)
{
    switch (verdict) {
    case Row::Verdict::Pass:
        return u"PASS"_s;
    case Row::Verdict::Miss:
        return u"MISS"_s;
    case Row::Verdict::Open:
        return u"–"_s;
    }
    return {};
}

std::vector<QStringList> cellsOf(const std::vector<Row> &rows)
{
    std::vector<QStringList> cells {{u"what"_s, u"this project"_s, u"beside"_s, u"its figure"_s,
                                     u"ratio"_s, u"must reach"_s, u""_s}};
    for (const Row &row : rows) {
        cells.push_back({row.what, row.subject, row.rival, row.rivalFigure, row.ratio, row.demand,
                         verdictText(row.verdict)});
    }
    return cells;
}

} // namespace

QString plainTable(const std::vector<Row> &rows)
{
    const std::vector<QStringList> cells = cellsOf(rows);
    std::vector<qsizetype> widths(static_cast<size_t>(cells.front().size()));
    for (const QStringList &line : cells) {
        for (size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], line.at(static_cast<qsizetype>(i)).size());
        }
    }
    QString text;
    for (const QStringList &line : cells) {
        QString padded;
        for (size_t i = 0; i < widths.size(); ++i) {
            padded += line.at(static_cast<qsizetype>(i)).leftJustified(widths[i] + 2);
        }
        text += padded.trimmed() + u'\n';
    }
    return text;
}

QString markdownTable(const std::vector<Row> &rows)
{
    QString text;
    for (const QStringList &line : cellsOf(rows)) {
        const bool isHead = text.isEmpty();
        text += u"| "_s + line.join(u" | "_s) + u" |\n"_s;
        if (isHead) {
            text += u"|"_s + u"---|"_s.repeated(line.size()) + u'\n';
        }
    }
    return text;
}

QString replaceSection(const QString &path, const QString &name, const QString &text)
{
    QString document;
    QFile file(path);
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly)) {
            return u"%1: %2"_s.arg(path, file.errorString());
        }
        document = QString::fromUtf8(file.readAll());
    }
    const QString opening = u"<!-- bench:%1 -->\n"_s.arg(name);
    const QString closing = u"<!-- /bench:%1 -->\n"_s.arg(name);
    const qsizetype begin = document.indexOf(opening);
    const qsizetype end = document.indexOf(closing, begin);
    if (begin >= 0 && end >= 0) {
        document.replace(begin, end - begin, opening + text);
    } else {
        document += u'\n' + opening + text + closing;
    }
    QSaveFile target(path);
    if (!target.open(QIODevice::WriteOnly) || target.write(document.toUtf8()) < 0
        || !target.commit()) {
        return u"%1: %2"_s.arg(path, target.errorString());
    }
    return {};
}

bool allMet(const std::vector<Row> &rows)
{
    return std::none_of(rows.begin(), rows.end(),
                        [](const Row &row) { return row.verdict == Row::Verdict::Miss; });
}
