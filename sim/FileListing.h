#pragma once

#include <QDir>

#include <string>
#include <vector>

#include <FcpInterfaces.hh>

class Storage;

/**
 * Lists @p directory (normalised) the way QDir would with @p filters and wildcard @p patterns, by
 * name in the order of their bytes.
 *
 * A symbolic link is what it points to; one that leads out of the storage counts as broken, and a
 * broken link is listed with QDir::System only. Times are local, "yyyy-MM-dd HH:mm:ss".
 * @return 0 or an errno value
 */
int listDirectory(const Storage &storage, const std::string &directory, QDir::Filters filters,
                  const std::vector<std::string> &patterns, FileSystemItemCORBASeq &items);
