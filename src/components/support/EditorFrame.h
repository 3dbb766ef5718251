#pragma once

#include <QRect>
#include <QString>

#include <optional>
#include <string>

class QPainter;
class QPixmap;
class QWidget;

namespace PANFx::Resource {
class Font;
}

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

// What the fields for text and values have in common: a frame of three pictures, of which the
// middle one is stretched, a text area, a placeholder, and elision.

/** File names of the pictures of a frame. */
struct FrameNames
{
    std::string start;
    std::string mid;
    std::string end;
};

/** A frame; the pictures stay the resource manager's. */
struct FramePieces
{
    QPixmap* start = nullptr; ///< null where there is none, as the other two
    QPixmap* mid = nullptr;
    QPixmap* end = nullptr;

    /** Whether there is something to draw for all three. */
    bool complete() const;
};

/** The names that a child element gives; none unless "start", "mid" and "end" are all there. */
std::optional<FrameNames> readFrameNames(TAMFx::Common::Xml::Node* pLayout, const char* pszElement);

/**
 * Looks up the pictures of those names; each that is missing becomes null.
 * @return whether all three exist
 */
bool findFrame(const FrameNames& names, QPixmap*& pStart, QPixmap*& pMid, QPixmap*& pEnd);

/** The rectangle that the child "position" gives, in pixels of the parent; 0, 0, 1, 1 without. */
QRect fieldPlace(TAMFx::Common::Xml::Node* pLayout);

/**
 * The text area that the child "padding" gives, in pixels inside a widget. A number that is
 * missing is that of an area 8 pixels from the left and the right: x 8, y 0, the width less 16,
 * the height.
 */
QRect readPadding(TAMFx::Common::Xml::Node* pLayout, const QWidget& widget);

/** Reads pictures and place of a field from its element and sets them. */
template <typename Field>
void readFieldFrame(Field& field, TAMFx::Common::Xml::Node* pLayout)
{
    if (auto up = readFrameNames(pLayout, "imageup"))
        field.setUpImage(up->start, up->mid, up->end, true);
    if (auto down = readFrameNames(pLayout, "imagedown"))
        field.setDownImage(down->start, down->mid, down->end);
    if (auto dim = readFrameNames(pLayout, "imagedim"))
        field.setDimImage(dim->start, dim->mid, dim->end);
    field.setGeometry(fieldPlace(pLayout));
}

/** Draws a complete frame along the upper side of a widget, in the height of its pictures. */
void drawFrame(QPainter& painter, const FramePieces& pieces, const QWidget& widget);

/** How the text of a field is cut where it is too long. */
struct Elision
{
    static constexpr int none = 3;       ///< as mode and as type
    static constexpr int touchZones = 4; ///< as type: a tap at an end of the field shows that end

    int mode = none; ///< a Qt::TextElideMode
    int type = none; ///< what was asked for
};

/** What setElidedText() of a field makes of its argument. */
Elision elisionFor(int nMode);

/** What a field shows, decoded. */
struct FieldText
{
    QString shown;       ///< the value; "" shows the placeholder
    QString placeholder; ///< shown while there is no text
    int echoMode = 0;    ///< 1 shows an asterisk for each character
    Elision elision;
};

/**
 * Draws the text of a field, or its placeholder.
 * @param font the style, whose font the painter has already
 */
void drawFieldText(QPainter& painter, const FieldText& text, const Resource::Font& font,
                   const QRect& rect, int nAlign);

/** Draws a text in the painter's font and a lighter shade of the style's colour. */
void drawPlaceholder(QPainter& painter, const QString& strText, const Resource::Font& font,
                     const QRect& rect, int nAlign);

} // namespace PANFx::Components
