#pragma once

#include <QFileIconProvider>
#include <QIcon>
#include <QString>
#include <QVariant>

#include <array>
#include <memory>

/** How entries of the instrument's storage look. */
namespace RemoteDisplay {

/** The QDateTime in the controller's text of a date, or the text where it is another format. */
QVariant time(const QString &date);
/** A controller's result in words; Linux's numbers, which controllers use, have some. */
QString errorText(long result);

/** One icon a kind, asked for once. */
class Icons
{
public:
    enum Kind { File, Folder, Instrument, InternalRoot, RemoteRoot, KindCount };
    QIcon icon(Kind kind);

private:
    std::unique_ptr<QFileIconProvider> m_provider;
    std::array<QIcon, KindCount> m_icons;
};

} // namespace RemoteDisplay
