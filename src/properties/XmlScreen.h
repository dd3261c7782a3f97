#pragma once

#include <QByteArrayView>
#include <QString>

/**
 * Looks over an XML text, in time that grows with its length only, for what a parser can be choked
 * with: document types, in which entities are declared that grow without bounds, and elements with
 * more than @p maxAttributes, which QXmlStreamReader compares each with each.
 *
 * Whether the text is well-formed is left to the parser; up to the first fault they agree on what
 * is markup.
 * @return what is wrong with it, in words; empty when nothing is.
 */
[[nodiscard]] QString objectionToXml(QByteArrayView xml, int maxAttributes);
