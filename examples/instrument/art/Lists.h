#pragma once

/// The pictures of lists: their grounds, boxes and heads, what turns their pages, and the
/// drop-downs of fields.
namespace art {

class Album;

void addLists(Album& album);

} // namespace art
