#pragma once

#include <functional>
#include <string>
#include <vector>

namespace PANFx::Components {
class ZELComponent;
}

namespace gallery {

/** One state of a component: what brings it about. */
struct Scene
{
    std::string state; ///< as the gallery names it: "pressed"
    std::function<void(PANFx::Components::ZELComponent&)> prepare;
};

/** A keyword of layout files and the states in which the gallery shows its component. */
struct Exhibit
{
    std::string keyword;
    std::vector<Scene> scenes;
};

/** A part of the gallery under a heading. */
struct Room
{
    std::string name;
    std::vector<Exhibit> exhibits;
};

/** All keywords of layout files, in the order of the reference. */
std::vector<Room> allRooms();

Room roomOfTexts();
Room roomOfPictures();
Room roomOfButtons();
Room roomOfFields();
Room roomOfLists();
Room roomOfContainers();
Room roomOfGauges();

} // namespace gallery
