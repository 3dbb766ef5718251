#include "common/ZELWindow.h"

#include <utility>

namespace PANFx::Windows {

ZELWindow::ZELWindow(std::string strID)
    : m_strID(std::move(strID))
{
}

ZELWindow::~ZELWindow() = default;

} // namespace PANFx::Windows
