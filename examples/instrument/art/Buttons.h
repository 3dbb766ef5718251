#pragma once

class QPainterPath;

/// The pictures of everything that can be pressed: NAME_up, NAME_down and NAME_dim, and NAME_on for
/// what is chosen.
namespace art {

class Album;

void addButtons(Album& album);

/// The tile of the first page that leads to the languages; it has a letter of the language in it.
void addLanguageTile(Album& album, const QPainterPath& icon);

} // namespace art
