#pragma once

#include <sys/types.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "UniqueFd.h"

/**
 * The instrument's storage: a real directory, of which clients see the two storage roots "Internal"
 * and "Remote" as "/Internal" and "/Remote".
 *
 * No path leads out of its storage root, whatever symbolic links it goes through, also when links
 * are swapped while an operation runs: paths are resolved by the kernel beneath the storage root's
 * descriptor, and what an operation changes is addressed by a directory's descriptor and one name.
 *
 * Names are bytes; nothing is converted. Results are 0 or an errno value. From any thread.
 */
class Storage
{
public:
    /** A place in the storage: an open directory, and the name of an entry that may be missing. */
    struct Place
    {
        UniqueFd directory; ///< opened with O_PATH
        std::string name;
    };

    /** Opens the root and makes the storage roots where they are missing. */
    int open(const std::string &root);

    /**
     * Brings a client's path into the form that the functions below take: relative to the root,
     * without "." and "..", and empty for the root itself. Nothing when it leads out of the root or
     * to something else than a storage root.
     */
    static std::optional<std::string> normalised(std::string_view path);
    /** Whether @p name can be the name of an entry: one component, neither "." nor "..". */
    static bool isName(std::string_view name);

    /**
     * Opens what is at @p path; symbolic links are followed as far as they stay in their storage
     * root.
     */
    int openAt(const std::string &path, int flags, UniqueFd &fd) const;
    /** Opens the directory that holds @p path. EPERM for the root and the storage roots. */
    int locate(const std::string &path, Place &place) const;

    int makeDirectory(const std::string &parent, std::string &createdPath) const;
    int rename(const std::string &directory, const std::string &oldName,
               const std::string &newName) const;
    /** Into @p destination if that is a directory, else to that path. Never replaces. */
    int move(const std::string &source, const std::string &destination) const;
    int copy(const std::string &source, const std::string &destination) const;
    /** Directories with everything in them; never follows a link. */
    int remove(const std::string &path) const;

private:
    int locateTarget(const std::string &source, const std::string &destination, Place &from,
                     Place &to) const;
    bool contains(const Place &directory, const UniqueFd &inner) const;

    UniqueFd m_root;
    std::array<UniqueFd, 2> m_storageRoots;
};

/** Renames without replacing; EEXIST when @p newName is there. */
int renameNoReplace(int oldDirectory, const char *oldName, int newDirectory, const char *newName);

/** @p name with @p suffix, shortened where that would be too long for a name. */
std::string temporaryName(const std::string &name, const std::string &suffix);
