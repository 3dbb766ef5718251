#pragma once

#include "Shapes.h"

/// The pictures of what is typed with: fields, the numeric pad and the keyboard.
namespace art {

class Album;

/// A field for a value, with nothing in it: a well in which something is typed while it is down.
QImage field(State state, const QSize& size);

/// The frames of fields for values: edit_up, edit_down and edit_dim, each in three pieces, _start,
/// _mid and _end. The middle one is stretched.
void addFields(Album& album);

/// Keys as NAME_up, NAME_down and NAME_dim, and the background of the pad.
void addKeys(Album& album);

} // namespace art
