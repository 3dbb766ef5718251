#include "Stage.h"

#include "Scenes.h"

#include "components/ZELComponent.h"

#include <QCoreApplication>
#include <QPixmap>

#include <stdexcept>

namespace gallery {

using PANFx::Components::ZELComponent;
using PANFx::Windows::ZELChildWindow;

namespace {

constexpr int margin = 12; // pixels

} // namespace

Stage::Stage(const std::string& strKeyword, const Scene& scene)
    : m_page(std::make_unique<ZELChildWindow>(strKeyword, nullptr, ""))
{
    m_page->show();
    QCoreApplication::sendPostedEvents();
    scene.prepare(component());
    QCoreApplication::sendPostedEvents();
}

// behind it lies the page's background, which is a component too
ZELComponent& Stage::component()
{
    if (m_page->m_dqSubComponents.size() != 2)
        throw std::logic_error("a page of the gallery has a background and one component: " +
                               m_page->m_strID);
    return *m_page->m_dqSubComponents.back();
}

QRect Stage::place()
{
    const QRect place = component().getQWidget()->geometry();
    return place.adjusted(-margin, -margin, margin, margin) & m_page->rect();
}

// A first painting may change the widgets, as masks do; the second shows them as they stay.
QImage Stage::picture()
{
    m_page->grab();
    return m_page->grab(place()).toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace gallery
