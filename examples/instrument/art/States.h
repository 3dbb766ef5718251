#pragma once

#include "Palette.h"
#include "Shapes.h"

#include <functional>
#include <initializer_list>
#include <string>

/// Pictures of one thing in several states, each with the name of its state at the end.
namespace art {

class Album;

/// Draws what belongs to one state.
using Inside = std::function<void(QPainter&, State)>;

const std::initializer_list<State> pushStates = {State::Up, State::Down, State::Dim};
const std::initializer_list<State> choiceStates = {State::Up, State::Down, State::Dim, State::On};

/// Writes one picture, called NAME_up, NAME_down, NAME_dim or NAME_on.
void addPicture(Album& album, const std::string& strName, const QSize& size, State state,
                const Inside& draw);

/// The pictures of a tile in the states given; what is drawn on it goes through `drawInside`.
void addTile(Album& album, const std::string& strName, const QSize& size, qreal dRadius,
             std::initializer_list<State> states, const Inside& drawInside,
             const QColor& accent = blue);

void drawNothing(QPainter& painter, State state);

} // namespace art
