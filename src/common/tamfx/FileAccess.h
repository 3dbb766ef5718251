#pragma once

#include <string>
#include <sys/types.h>

namespace TAMFx::Common {

/**
 * Reads a whole file. Gives 0, or the system's error number: also for a directory (EISDIR),
 * another thing that is no regular file (EINVAL) and more than 256 MiB (EFBIG).
 */
int readFile(const std::string& strPath, std::string& strContent);

/**
 * Replaces or creates a file, so that after a power cut the old or the new content is there as a
 * whole; the content is on the disk when this returns true. Permissions and owner of the old file
 * are kept where the system allows it, and the end of a symbolic link is replaced, not the link.
 */
bool replaceFile(const std::string& strPath, const std::string& strContent);

/**
 * Path without links and relative parts. Of a file that is missing the folder is resolved, and of
 * one in a missing folder nothing.
 */
std::string realPathOf(const std::string& strPath);

/**
 * Opens a file and waits for an exclusive lock on it, which every descriptor of this process and
 * of others respects that came from this function. The file is the one that the path names at the
 * moment the lock is got. Gives -1 with errno when it cannot be opened or locked.
 */
int openLocked(const std::string& strPath, int nFlags, mode_t nMode);

} // namespace TAMFx::Common
