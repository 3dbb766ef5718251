#include "components/editors/ZELImageTimeEdit.h"

#include "common/Numbers.h"
#include "components/editors/DigitText.h"
#include "components/support/LayoutPosition.h"
#include "resource/Font.h"

#include <QFont>
#include <QPainter>

#include <utility>

namespace PANFx::Components {

using Common::toInt;

namespace {

constexpr int hoursOfHalfDay = 12;
constexpr int lastMinute = 59;
constexpr int beyondFirstOfHour = 2; // a digit from here on can only be a whole hour
constexpr int beyondFirstOfMinute = 6;
constexpr int widthPerPoint = 2;
constexpr int margin = 8;          // pixels left of the hour
constexpr int separatorWidth = 10; // pixels
constexpr std::size_t timeLength = 5;
constexpr std::size_t minutePlace = 3;

QString am()
{
    return QStringLiteral("AM");
}

QString pm()
{
    return QStringLiteral("PM");
}

} // namespace

ZELImageTimeEdit::ZELImageTimeEdit(QWidget* pParent, std::string strID, std::string strType,
                                   TAMFx::Common::Xml::Node* pLayout)
    : ZELImageEdit(pParent, std::move(strID), std::move(strType), pLayout)
{
    if (m_pFont)
        m_nColumnWidth = heldPixels(m_pFont->m_pFont->pointSize()) * widthPerPoint;
    else if (pLayout)
        tellNoFont(m_logger, "ZELImageTimeEdit");
    ZELImageTimeEdit::clear();
    ZELImageEdit::setLayout(pLayout);
    m_nAlign = Qt::AlignCenter;
}

ZELImageTimeEdit::~ZELImageTimeEdit() = default;

void ZELImageTimeEdit::showWindow()
{
    setVisible(true);
}

void ZELImageTimeEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageTimeEdit::getQWidget()
{
    return this;
}

void ZELImageTimeEdit::clear()
{
    m_strHour.clear();
    m_strMinute.clear();
    m_strAmPm = am();
    update();
}

std::string ZELImageTimeEdit::text()
{
    if (m_strHour.isEmpty() || m_strMinute.size() < 2)
        return {};
    int hour = numberIn(m_strHour);
    if (m_strAmPm == am())
        hour %= hoursOfHalfDay;
    else if (hour < hoursOfHalfDay)
        hour += hoursOfHalfDay;
    return QString(twoDigits(hour) + QLatin1Char(':') + twoDigits(numberIn(m_strMinute)))
        .toStdString();
}

void ZELImageTimeEdit::setText(const char* pszText)
{
    if (!pszText || !*pszText)
        clear();
    else
        setText(std::string(pszText));
}

void ZELImageTimeEdit::setText(std::string strText)
{
    if (processText(std::move(strText)))
        update();
}

void ZELImageTimeEdit::setText(int nHour, int nMinute, bool bAM)
{
    processText(nHour, nMinute, bAM);
}

void ZELImageTimeEdit::addText(const char* pszText)
{
    typeEach(*this, pszText, [this](char c) { return processText(c); });
}

void ZELImageTimeEdit::addText(std::string strText)
{
    addText(strText.c_str());
}

void ZELImageTimeEdit::backspace()
{
    if (!m_strMinute.isEmpty())
        m_strMinute.chop(1);
    else
        m_strHour.chop(1);
    update();
}

void ZELImageTimeEdit::changeAMPM()
{
    m_strAmPm = m_strAmPm == am() ? pm() : am();
    update();
}

bool ZELImageTimeEdit::isAM()
{
    return m_strAmPm != pm();
}

bool ZELImageTimeEdit::processText(char c)
{
    if (c == 'A' || c == 'P')
        m_strAmPm = QString::asprintf("%cM", c);
    else if (isDigit(c))
        typeDigit(digitOf(c));
    else
        return false;
    return true;
}

// A digit that can have no second one behind it closes its part at once.
void ZELImageTimeEdit::typeDigit(int nDigit)
{
    if (m_strHour.isEmpty()) {
        m_strHour = firstDigit(nDigit, beyondFirstOfHour);
    } else if (m_strMinute.isEmpty() && m_strHour.size() == 1) {
        typeSecondDigit(m_strHour, nDigit, hoursOfHalfDay);
    } else if (m_strMinute.isEmpty()) {
        m_strMinute = firstDigit(nDigit, beyondFirstOfMinute);
    } else if (m_strMinute.size() == 1) {
        m_strMinute += plainNumber(nDigit);
    }
}

bool ZELImageTimeEdit::processText(std::string strText)
{
    if (strText.size() < timeLength)
        return false;
    const int hour = toInt(strText.substr(0, 2).c_str());
    const int minute = toInt(strText.substr(minutePlace, 2).c_str());
    processText(hour, minute, hour < hoursOfHalfDay);
    return true;
}

bool ZELImageTimeEdit::processText(int nHour, int nMinute, bool bAM)
{
    int hour = nHour > hoursOfHalfDay ? nHour % hoursOfHalfDay : nHour;
    if (hour == 0)
        hour = hoursOfHalfDay;
    m_strHour = twoDigits(hour);
    m_strMinute = twoDigits(nMinute > lastMinute ? 0 : nMinute);
    m_strAmPm = bAM ? am() : pm();
    return true;
}

void ZELImageTimeEdit::paintEvent(QPaintEvent*)
{
    if (!hasFrame())
        return;
    QPainter painter(this);
    paintFrame(painter);
    if (!setTextStyle(painter, m_pFont, m_logger))
        return;
    if (m_strHour.isEmpty() && m_strMinute.isEmpty() && !m_strPlaceholder.empty())
        drawPlaceholder(painter, QString::fromUtf8(m_strPlaceholder.c_str()), *m_pFont,
                        m_paddingRect, m_nAlign);
    else
        paintColumns(painter);
}

// The columns begin at a fixed margin, wherever the text area lies.
void ZELImageTimeEdit::paintColumns(QPainter& painter) const
{
    int left = margin;
    const auto column = [&](const QString& text, int width) {
        painter.drawText(QRect(left, 0, width, height()), m_nAlign, text);
        left += width;
    };
    column(m_strHour, m_nColumnWidth);
    column(QStringLiteral(":"), separatorWidth);
    column(m_strMinute, m_nColumnWidth);
    column(m_strAmPm, m_nColumnWidth);
}

} // namespace PANFx::Components
