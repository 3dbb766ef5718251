#pragma once

#include "events/ZELEvent.h"
#include "windows/ZELChildWindow.h"

#include <functional>
#include <string>
#include <utility>

namespace PANFx::Testing {

/** A page as an application writes it: it acts on what its components post. */
class ApplicationPage : public Windows::ZELChildWindow
{
public:
    using Handler = std::function<void(ZELEvent& event)>;

    ApplicationPage(std::string id, QWidget* parent, Handler handler)
        : ZELChildWindow(std::move(id), parent, "")
        , m_handler(std::move(handler))
    {
    }

protected:
    bool event(QEvent* event) override
    {
        if (ZELEvent* const ours = ZELEvent::from(event)) {
            m_handler(*ours);
            return true;
        }
        return ZELChildWindow::event(event);
    }

private:
    Handler m_handler;
};

} // namespace PANFx::Testing
