#pragma once

#include <functional>
#include <string>

/**
 * @file
 * Whole trees of files, addressed by a directory's descriptor and a name in it. Symbolic links are
 * never followed. Results are 0 or an errno value.
 */

/** Copies a file, a link or a directory with all it holds to a name that is not there yet. */
int copyTree(int fromDirectory, const std::string &from, int toDirectory, const std::string &to);

/** Removes a file, a link or a directory with all it holds. */
int removeTree(int directory, const std::string &name);

/** Calls @p visit with each entry's name but "." and ".." until it returns other than 0. */
int forEachEntry(int directory, const std::function<int(const char *name)> &visit);
