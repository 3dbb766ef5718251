#include "dialogs/InstrumentDialog.h"

#include "InstrumentFrame.h"

#include <QPainter>

namespace {

const QColor shade(4, 8, 13, 190);

} // namespace

InstrumentDialog::InstrumentDialog(const std::string& strID, InstrumentFrame* pFrame)
    : ZELPopupWindow(strID, pFrame)
    , m_pFrame(pFrame)
{
}

void InstrumentDialog::activating()
{
    m_page = m_pFrame->grab();
}

void InstrumentDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_page);
    painter.fillRect(rect(), shade);
}

void InstrumentDialog::finish(int nResult)
{
    m_nPopupResult = nResult;
    accept();
}
