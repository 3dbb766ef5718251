#pragma once

#include "windows/ZELChildWindow.h"

#include <QImage>
#include <QRect>

#include <memory>
#include <string>

namespace gallery {

struct Scene;

/** One page of the gallery, built from the layout file of its keyword, with one scene played. */
class Stage
{
public:
    /** Builds the page, shows it and plays the scene. */
    Stage(const std::string& strKeyword, const Scene& scene);

    /** The component that the page is about: the first one of its file. */
    PANFx::Components::ZELComponent& component();

    /** The component's place on the page, and a margin. */
    QRect place();

    /** What that place shows. */
    QImage picture();

private:
    std::unique_ptr<PANFx::Windows::ZELChildWindow> m_page;
};

} // namespace gallery
