#pragma once

/// The grounds of pages and dialogs, and the rings of the gauges, which fit into grooves of them.
namespace art {

class Album;

void addPages(Album& album);
void addRings(Album& album);

} // namespace art
