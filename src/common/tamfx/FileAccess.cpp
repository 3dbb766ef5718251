#include "common/tamfx/FileAccess.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TAMFx::Common {

namespace {

constexpr off_t maximumSize = off_t(1) << 28;
constexpr mode_t modeOfNewFile = 0644;
constexpr int maximumOfLinks = 40;

/** Closes a descriptor at the end of its scope. */
class Descriptor
{
public:
    explicit Descriptor(int nDescriptor)
        : m_nDescriptor(nDescriptor)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_nDescriptor >= 0)
            close(m_nDescriptor);
    }

    operator int() const { return m_nDescriptor; }

private:
    int m_nDescriptor;
};

std::string::size_type slashOf(const std::string& strPath)
{
    return strPath.rfind('/');
}

std::string folderOf(const std::string& strPath)
{
    const auto nSlash = slashOf(strPath);
    if (nSlash == std::string::npos)
        return ".";
    return nSlash == 0 ? "/" : strPath.substr(0, nSlash);
}

std::string nameOf(const std::string& strPath)
{
    const auto nSlash = slashOf(strPath);
    return nSlash == std::string::npos ? strPath : strPath.substr(nSlash + 1);
}

/** The system's own resolution; "" when something on the way is missing. */
std::string resolved(const std::string& strPath)
{
    char* pResolved = realpath(strPath.c_str(), nullptr);
    const std::string strResolved = pResolved ? pResolved : "";
    std::free(pResolved);
    return strResolved;
}

int readAll(int nFile, std::string& strContent)
{
    std::size_t nRead = 0;
    for (;;) {
        if (nRead == strContent.size())
            strContent.resize(nRead + 4096);
        const ssize_t nBytes = read(nFile, &strContent[nRead], strContent.size() - nRead);
        if (nBytes < 0 && errno == EINTR)
            continue;
        if (nBytes < 0)
            return errno;
        if (nBytes == 0)
            break;
        nRead += static_cast<std::size_t>(nBytes);
        if (nRead > static_cast<std::size_t>(maximumSize))
            return EFBIG;
    }
    strContent.resize(nRead);
    return 0;
}

bool writeAll(int nFile, const std::string& strContent)
{
    std::size_t nWritten = 0;
    while (nWritten < strContent.size()) {
        const ssize_t nBytes =
            write(nFile, strContent.data() + nWritten, strContent.size() - nWritten);
        if (nBytes < 0 && errno == EINTR)
            continue;
        if (nBytes <= 0)
            return false;
        nWritten += static_cast<std::size_t>(nBytes);
    }
    return true;
}

void takeOwnerAndMode(int nFile, const std::string& strFrom)
{
    struct stat from;
    if (stat(strFrom.c_str(), &from) != 0)
        return;
    // Only root may give a file away. Others may still keep the group, if they belong to it.
    const bool bKept = fchown(nFile, from.st_uid, from.st_gid) == 0 ||
                       fchown(nFile, static_cast<uid_t>(-1), from.st_gid) == 0;
    static_cast<void>(bKept);
    fchmod(nFile, from.st_mode & 07777);
}

/** Makes a temporary file, possibly one that a power cut left behind, the new file. */
bool fill(int nFile, const std::string& strTarget, const std::string& strContent)
{
    struct stat present;
    if (fstat(nFile, &present) != 0 || !S_ISREG(present.st_mode))
        return false;
    takeOwnerAndMode(nFile, strTarget);
    return ftruncate(nFile, 0) == 0 && writeAll(nFile, strContent) && fsync(nFile) == 0;
}

bool isStillAt(const std::string& strPath, int nFile)
{
    struct stat opened;
    struct stat present;
    return fstat(nFile, &opened) == 0 && stat(strPath.c_str(), &present) == 0 &&
           opened.st_dev == present.st_dev && opened.st_ino == present.st_ino;
}

} // namespace

int readFile(const std::string& strPath, std::string& strContent)
{
    // Not blocking, so that a pipe in the place of the file cannot stop the panel.
    const Descriptor file(open(strPath.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    struct stat status;
    if (file < 0 || fstat(file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    if (status.st_size > maximumSize)
        return EFBIG;
    // One byte more than expected: so the end is found without another round of growing.
    strContent.resize(static_cast<std::size_t>(status.st_size) + 1);
    return readAll(file, strContent);
}

bool replaceFile(const std::string& strPath, const std::string& strContent)
{
    const std::string strTarget = realPathOf(strPath);
    const std::string strFolder = folderOf(strTarget);
    const Descriptor folder(open(strFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder < 0)
        return false;
    // One fixed name, so that what a power cut leaves behind is used up by the next update; the
    // lock keeps a second process from it until this one has renamed it.
    const std::string strTemporary = strFolder + "/." + nameOf(strTarget) + ".update";
    const Descriptor file(
        openLocked(strTemporary, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK, modeOfNewFile));
    if (file < 0)
        return false;
    if (!fill(file, strTarget, strContent) ||
        std::rename(strTemporary.c_str(), strTarget.c_str()) != 0) {
        unlink(strTemporary.c_str());
        return false;
    }
    return fsync(folder) == 0;
}

std::string realPathOf(const std::string& strPath)
{
    std::string strMissing = strPath;
    for (int i = 0; i < maximumOfLinks; ++i) {
        const std::string strResolved = resolved(strMissing);
        if (!strResolved.empty())
            return strResolved;
        char link[PATH_MAX];
        const ssize_t nLength = readlink(strMissing.c_str(), link, sizeof link);
        if (nLength <= 0)
            break;
        const std::string strLink(link, static_cast<std::size_t>(nLength));
        strMissing = strLink[0] == '/' ? strLink : folderOf(strMissing) + "/" + strLink;
    }
    const std::string strFolder = resolved(folderOf(strMissing));
    if (strFolder.empty())
        return strPath;
    return (strFolder == "/" ? "" : strFolder) + "/" + nameOf(strMissing);
}

int openLocked(const std::string& strPath, int nFlags, mode_t nMode)
{
    for (;;) {
        const int nFile = open(strPath.c_str(), nFlags | O_CLOEXEC, nMode);
        if (nFile < 0)
            return -1;
        int nResult = 0;
        do {
            nResult = flock(nFile, LOCK_EX);
        } while (nResult != 0 && errno == EINTR);
        if (nResult == 0 && isStillAt(strPath, nFile))
            return nFile;
        const int nError = errno;
        close(nFile);
        errno = nError;
        // Without the lock it is a failure. With it, the file was renamed or removed meanwhile.
        if (nResult != 0)
            return -1;
    }
}

} // namespace TAMFx::Common
