#pragma once

#include <QString>

/**
 * The text of a page's function recipe(), cut out of the source file that the program was built
 * from; empty when there is none.
 */
QString recipeOf(const QString &className);
