#pragma once

#include "Scenes.h"

#include "components/ZELComponent.h"

#include <QWidget>

#include <stdexcept>
#include <string>

/** What scenes are made of. */
namespace gallery {

/** A component as its class; throws where a layout and a scene do not fit. */
template <class T>
T& as(PANFx::Components::ZELComponent& component)
{
    auto* const wanted = dynamic_cast<T*>(&component);
    if (!wanted)
        throw std::logic_error("a scene was written for another class than " + component.m_strType);
    return *wanted;
}

/** The part of that id, at any depth. */
template <class T>
T& part(PANFx::Components::ZELComponent& component, const std::string& strID)
{
    for (QWidget* widget : component.getQWidget()->findChildren<QWidget*>()) {
        auto* const found = dynamic_cast<T*>(widget);
        if (found && found->m_strID == strID)
            return *found;
    }
    throw std::logic_error("a scene wants a part that its layout does not have: " + strID);
}

/** As the layout makes it. */
void atRest(PANFx::Components::ZELComponent& component);

/** A finger comes down in the middle and stays. */
void press(PANFx::Components::ZELComponent& component);

/** The same, and up again; what it posts is delivered. */
void tap(PANFx::Components::ZELComponent& component);

/** As if the widget got the focus; only an active window gives it. */
void focus(PANFx::Components::ZELComponent& component);

/** Dim mode of all that has the operation. */
template <class T>
void dim(PANFx::Components::ZELComponent& component)
{
    as<T>(component).setDimMode(true);
}

} // namespace gallery
