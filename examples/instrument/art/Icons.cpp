#include "Icons.h"

namespace art {

namespace {

/// Adds an open line through the points.
void addLine(QPainterPath& path, std::initializer_list<QPointF> points)
{
    path.addPolygon(QVector<QPointF>(points));
}

QPainterPath bubble()
{
    QPainterPath path;
    path.moveTo(12, 7);
    path.lineTo(36, 7);
    path.quadTo(42, 7, 42, 13);
    path.lineTo(42, 30);
    path.quadTo(42, 36, 36, 36);
    path.lineTo(24, 36);
    path.lineTo(15, 43);
    path.lineTo(15, 36);
    path.lineTo(12, 36);
    path.quadTo(6, 36, 6, 30);
    path.lineTo(6, 13);
    path.quadTo(6, 7, 12, 7);
    path.closeSubpath();
    return path;
}

} // namespace

QPainterPath dropShape()
{
    QPainterPath path;
    path.moveTo(24, 4);
    path.cubicTo(29, 12, 38, 20, 38, 30);
    path.cubicTo(38, 38, 32, 44, 24, 44);
    path.cubicTo(16, 44, 10, 38, 10, 30);
    path.cubicTo(10, 20, 19, 12, 24, 4);
    path.closeSubpath();
    return path;
}

QPainterPath drop()
{
    QPainterPath path = dropShape();
    path.moveTo(17, 31);
    path.cubicTo(17, 34.5, 19.5, 37, 23, 37);
    return path;
}

QPainterPath results()
{
    QPainterPath path;
    path.addRoundedRect(9, 6, 30, 37, 5, 5);
    addLine(path, {{17, 34}, {17, 28}});
    addLine(path, {{24, 34}, {24, 17}});
    addLine(path, {{31, 34}, {31, 23}});
    return path;
}

QPainterPath sliders()
{
    QPainterPath path;
    const qreal knobs[3][2] = {{13, 31}, {24, 16}, {35, 29}};
    for (const auto& knob : knobs) {
        addLine(path, {{knob[0], 6}, {knob[0], knob[1] - 5}});
        path.addEllipse(QPointF(knob[0], knob[1]), 5, 5);
        addLine(path, {{knob[0], knob[1] + 5}, {knob[0], 42}});
    }
    return path;
}

QPainterPath bubbleLatin()
{
    QPainterPath path = bubble();
    addLine(path, {{17, 29}, {24, 13}, {31, 29}});
    addLine(path, {{19.5, 24}, {28.5, 24}});
    return path;
}

QPainterPath bubbleKorean()
{
    QPainterPath path = bubble();
    path.moveTo(15, 14);
    path.lineTo(25, 14);
    path.quadTo(25, 24, 15, 29);
    addLine(path, {{31, 12}, {31, 31}});
    addLine(path, {{31, 21}, {36, 21}});
    return path;
}

QPainterPath flask()
{
    QPainterPath path;
    addLine(path, {{18, 6}, {30, 6}});
    path.moveTo(20, 6);
    path.lineTo(20, 18);
    path.lineTo(9, 37);
    path.quadTo(6.5, 43, 13, 43);
    path.lineTo(35, 43);
    path.quadTo(41.5, 43, 39, 37);
    path.lineTo(28, 18);
    path.lineTo(28, 6);
    path.moveTo(14, 30);
    path.cubicTo(19, 26, 22, 26, 25, 29);
    path.cubicTo(28, 32, 31, 32, 34, 30);
    return path;
}

QPainterPath bolt()
{
    QPainterPath path;
    addLine(path, {{27, 5}, {12, 27}, {23, 27}, {20, 43}, {36, 20}, {25, 20}});
    path.closeSubpath();
    return path;
}

QPainterPath oxygen()
{
    QPainterPath path;
    path.addEllipse(QPointF(18, 29), 12, 12);
    path.addEllipse(QPointF(34, 14), 7, 7);
    path.addEllipse(QPointF(38, 37), 4, 4);
    return path;
}

QPainterPath thermometer()
{
    QPainterPath path;
    path.moveTo(18.5, 27);
    path.lineTo(18.5, 10.5);
    path.cubicTo(18.5, 3.5, 29.5, 3.5, 29.5, 10.5);
    path.lineTo(29.5, 27);
    path.cubicTo(38.5, 33, 34, 44, 24, 44);
    path.cubicTo(14, 44, 9.5, 33, 18.5, 27);
    path.closeSubpath();
    addLine(path, {{24, 16}, {24, 34}});
    return path;
}

QPainterPath arrowBack()
{
    QPainterPath path;
    addLine(path, {{22, 12}, {10, 24}, {22, 36}});
    addLine(path, {{10, 24}, {39, 24}});
    return path;
}

QPainterPath chevron()
{
    QPainterPath path;
    addLine(path, {{18, 10}, {32, 24}, {18, 38}});
    return path;
}

QPainterPath tick()
{
    QPainterPath path;
    addLine(path, {{10, 25}, {20, 35}, {38, 13}});
    return path;
}

QPainterPath plus()
{
    QPainterPath path = minus();
    addLine(path, {{24, 10}, {24, 38}});
    return path;
}

QPainterPath minus()
{
    QPainterPath path;
    addLine(path, {{10, 24}, {38, 24}});
    return path;
}

QPainterPath store()
{
    QPainterPath path;
    addLine(path, {{24, 6}, {24, 29}});
    addLine(path, {{14, 20}, {24, 30}, {34, 20}});
    addLine(path, {{8, 31}, {8, 41}, {40, 41}, {40, 31}});
    return path;
}

QPainterPath printer()
{
    QPainterPath path;
    addLine(path, {{14, 16}, {14, 6}, {34, 6}, {34, 16}});
    addLine(path, {{14, 34}, {7, 34}, {7, 16}, {41, 16}, {41, 34}, {34, 34}});
    path.addRect(14, 28, 20, 14);
    return path;
}

QPainterPath camera()
{
    QPainterPath path;
    addLine(path, {{6, 15}, {15, 15}, {19, 9}, {29, 9}, {33, 15}, {42, 15}, {42, 39}, {6, 39}});
    path.closeSubpath();
    path.addEllipse(QPointF(24, 26), 7, 7);
    return path;
}

QPainterPath bin()
{
    QPainterPath path;
    addLine(path, {{8, 13}, {40, 13}});
    addLine(path, {{18, 13}, {18, 7}, {30, 7}, {30, 13}});
    addLine(path, {{12, 13}, {14, 42}, {34, 42}, {36, 13}});
    addLine(path, {{21, 21}, {21, 34}});
    addLine(path, {{27, 21}, {27, 34}});
    return path;
}

QPainterPath bell()
{
    QPainterPath path;
    path.moveTo(9, 35);
    path.cubicTo(14, 31, 13, 25, 13, 20);
    path.cubicTo(13, 6, 35, 6, 35, 20);
    path.cubicTo(35, 25, 34, 31, 39, 35);
    path.closeSubpath();
    path.moveTo(20, 41);
    path.quadTo(24, 44, 28, 41);
    return path;
}

QPainterPath stirrer()
{
    QPainterPath path;
    addLine(path, {{24, 5}, {24, 24}});
    path.moveTo(24, 24);
    path.cubicTo(16, 15, 6, 20, 8, 27);
    path.cubicTo(10, 33, 19, 31, 24, 24);
    path.cubicTo(32, 15, 42, 20, 40, 27);
    path.cubicTo(38, 33, 29, 31, 24, 24);
    path.moveTo(12, 40);
    path.quadTo(24, 46, 36, 40);
    return path;
}

QPainterPath clock()
{
    QPainterPath path;
    path.addEllipse(QPointF(24, 24), 18, 18);
    addLine(path, {{24, 13}, {24, 24}, {32, 29}});
    return path;
}

QPainterPath network()
{
    QPainterPath path;
    for (const QPointF& corner : {QPointF(17, 6), QPointF(5, 31), QPointF(29, 31)})
        path.addRoundedRect(QRectF(corner, QSizeF(14, 12)), 3, 3);
    addLine(path, {{24, 18}, {24, 25}});
    addLine(path, {{12, 31}, {12, 25}, {36, 25}, {36, 31}});
    return path;
}

QPainterPath tag()
{
    QPainterPath path;
    addLine(path, {{7, 7}, {24, 7}, {42, 25}, {25, 42}, {7, 24}});
    path.closeSubpath();
    path.addEllipse(QPointF(16, 16), 3, 3);
    return path;
}

QPainterPath backspace()
{
    QPainterPath path;
    addLine(path, {{4, 24}, {16, 9}, {44, 9}, {44, 39}, {16, 39}});
    path.closeSubpath();
    addLine(path, {{22, 18}, {34, 30}});
    addLine(path, {{34, 18}, {22, 30}});
    return path;
}

QPainterPath shift()
{
    QPainterPath path;
    addLine(path, {{24, 6}, {42, 25}, {32, 25}, {32, 41}, {16, 41}, {16, 25}, {6, 25}});
    path.closeSubpath();
    return path;
}

QPainterPath globe()
{
    QPainterPath path;
    path.addEllipse(QPointF(24, 24), 18, 18);
    path.addEllipse(QPointF(24, 24), 8, 18);
    addLine(path, {{6, 24}, {42, 24}});
    return path;
}

QPainterPath barcode()
{
    QPainterPath path;
    for (const qreal x : {6.0, 12.0, 20.0, 27.0, 36.0, 42.0})
        addLine(path, {{x, 10}, {x, 38}});
    return path;
}

} // namespace art
