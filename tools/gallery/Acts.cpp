#include "Acts.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QMouseEvent>

namespace gallery {

using PANFx::Components::ZELComponent;

namespace {

void touch(ZELComponent& component, QEvent::Type type)
{
    QWidget* const widget = component.getQWidget();
    const QPoint at = widget->rect().center();
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

void atRest(ZELComponent&) {}

void press(ZELComponent& component)
{
    touch(component, QEvent::MouseButtonPress);
}

void tap(ZELComponent& component)
{
    press(component);
    touch(component, QEvent::MouseButtonRelease);
    QCoreApplication::sendPostedEvents();
}

void focus(ZELComponent& component)
{
    QFocusEvent event(QEvent::FocusIn);
    QCoreApplication::sendEvent(component.getQWidget(), &event);
}

std::vector<Room> allRooms()
{
    return {roomOfTexts(), roomOfPictures(),   roomOfButtons(), roomOfFields(),
            roomOfLists(), roomOfContainers(), roomOfGauges()};
}

} // namespace gallery
