#pragma once

#include "components/editors/FieldTest.h"
#include "components/text/ZELLineEdit.h"
#include "events/EventNumbers.h"

#include <QtTest/QTest>

#include <functional>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** A line edit whose inside is open, as it is to an application's derived class. */
class OpenLine : public Components::ZELLineEdit
{
public:
    using ZELLineEdit::ZELLineEdit;

    using ZELLineEdit::m_bBarcodeMode;
    using ZELLineEdit::m_bClearOnKey;
    using ZELLineEdit::m_bDimMode;
    using ZELLineEdit::m_bShowMode;
    using ZELLineEdit::m_logger;
    using ZELLineEdit::m_nAlign;
    using ZELLineEdit::m_nEchoMode;
    using ZELLineEdit::m_nElideMode;
    using ZELLineEdit::m_nElideType;
    using ZELLineEdit::m_pCurEnd;
    using ZELLineEdit::m_pCurMid;
    using ZELLineEdit::m_pCurStart;
    using ZELLineEdit::m_pDimEnd;
    using ZELLineEdit::m_pDimFont;
    using ZELLineEdit::m_pDimMid;
    using ZELLineEdit::m_pDimStart;
    using ZELLineEdit::m_pDownEnd;
    using ZELLineEdit::m_pDownMid;
    using ZELLineEdit::m_pDownStart;
    using ZELLineEdit::m_pFont;
    using ZELLineEdit::m_pUpEnd;
    using ZELLineEdit::m_pUpMid;
    using ZELLineEdit::m_pUpStart;
    using ZELLineEdit::m_rcText;
    using ZELLineEdit::m_strBarcode;
    using ZELLineEdit::m_strReserved;

    // what a widget in dim mode is not asked by Qt
    using ZELLineEdit::focusOutEvent;
    using ZELLineEdit::mouseDoubleClickEvent;
    using ZELLineEdit::mousePressEvent;
    using ZELLineEdit::mouseReleaseEvent;
};

/** The fixture of the line edit: the frames of the fields. */
class LineEditTest : public FieldTest
{
protected:
    using Pieces = std::vector<QPixmap*>;

    static Pieces current(const OpenLine* line)
    {
        return {line->m_pCurStart, line->m_pCurMid, line->m_pCurEnd};
    }

    static Pieces pieces(State state)
    {
        return {picture(piece(state, "start")), picture(piece(state, "mid")),
                picture(piece(state, "end"))};
    }

    OpenLine* line(const std::string& attributes = "style='normal'",
                   const std::string& children = "")
    {
        return make<OpenLine>(field(attributes, children), "ZELLineEdit");
    }

    static ::testing::AssertionResult shows(QWidget* line, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(line), expected);
    }

    /** The frame of a state with this text at the left of the default area. */
    static ::testing::AssertionResult showsText(QWidget* line, const QString& text,
                                                const QColor& pen = Qt::black, State state = up)
    {
        return shows(line, framedText(text, textArea, toTheLeft, pen, state));
    }
};

} // namespace PANFx::Testing
