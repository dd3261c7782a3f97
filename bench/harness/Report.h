#pragma once

#include <QString>

#include <vector>

#include "Suite.h"

/** The rows as a table for people to read. */
QString plainTable(const std::vector<Row> &rows);
QString markdownTable(const std::vector<Row> &rows);

/**
 * Puts @p text into the Markdown file at @p path between the comments
 * "<!-- bench:NAME -->" and "<!-- /bench:NAME -->"; at its end when it has none.
 * @return an error text, empty after success.
 */
[[nodiscard]] QString replaceSection(const QString &path, const QString &name, const QString &text);

bool allMet(const std::vector<Row> &rows);
