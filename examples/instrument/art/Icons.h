#pragma once

#include <QPainterPath>

/// Line drawings on a field of 48 by 48 units, to be stroked with a round pen of about 3 units.
/// Paths that are meant to be filled instead are named ...Shape.
namespace art {

QPainterPath dropShape();
QPainterPath drop();
QPainterPath results();
QPainterPath sliders();
QPainterPath bubbleLatin();
QPainterPath bubbleKorean();
QPainterPath flask();
QPainterPath bolt();
QPainterPath oxygen();
QPainterPath thermometer();
QPainterPath arrowBack();
QPainterPath chevron();
QPainterPath tick();
QPainterPath plus();
QPainterPath minus();
QPainterPath store();
QPainterPath printer();
QPainterPath camera();
QPainterPath bin();
QPainterPath bell();
QPainterPath stirrer();
QPainterPath clock();
QPainterPath network();
QPainterPath tag();
QPainterPath backspace();
QPainterPath shift();
QPainterPath globe();
QPainterPath barcode();

} // namespace art
