#pragma once

/// The pictures of tabs, range controls, progress bars and the help bubble, and of the buttons
/// that lead to them.
namespace art {

class Album;

void addGauges(Album& album);

} // namespace art
