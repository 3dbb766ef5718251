#include "tour/TourReader.h"

#include "common/systemPath.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string pipePath()
{
    return PANFx::Common::systemPath("/dev/reader");
}

} // namespace

TourReader::~TourReader()
{
    unplug();
}

void TourReader::read(const std::string& strLine)
{
    if (m_nPipe < 0)
        ::unlink(pipePath().c_str());
    if (m_nPipe < 0 && ::mkfifo(pipePath().c_str(), 0600) == 0)
        m_nPipe = ::open(pipePath().c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    const std::string strSent = strLine + "\n";
    const auto nLength = static_cast<ssize_t>(strSent.size());
    if (m_nPipe < 0 || ::write(m_nPipe, strSent.data(), strSent.size()) != nLength)
        std::perror("no label reader");
}

void TourReader::unplug()
{
    if (m_nPipe < 0)
        return;
    ::close(m_nPipe);
    m_nPipe = -1;
    ::unlink(pipePath().c_str());
}
