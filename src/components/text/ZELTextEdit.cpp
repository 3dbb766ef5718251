#include "components/text/ZELTextEdit.h"

#include "common/systemPath.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutPosition.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

namespace {

constexpr const char* styleSheetPath = "/app/bin/resource/stylesheet.qss";

} // namespace

ZELTextEdit::ZELTextEdit(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QTextEdit(pParent)
{
    ZELTextEdit::setLayout(pLayout);
    readStyleSheet();
}

ZELTextEdit::~ZELTextEdit() = default;

void ZELTextEdit::showWindow()
{
    setVisible(true);
}

void ZELTextEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELTextEdit::getQWidget()
{
    return this;
}

void ZELTextEdit::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 0, 0}).rect());
}

// The text ends at the first zero byte.
void ZELTextEdit::readStyleSheet()
{
    QFile file(QString::fromStdString(Common::systemPath(styleSheetPath)));
    if (!file.open(QIODevice::ReadOnly)) {
        m_logger.WriteDebug("[%s] fail to open a style file!\n", "ZELTextEdit");
        return;
    }
    setStyleSheet(QString::fromLatin1(file.readAll().constData()));
}

bool ZELTextEdit::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(pEvent)->key();
        if (key == Qt::Key_Home || key == Qt::Key_End)
            return false;
    }
    if (type == QEvent::FocusIn || type == QEvent::FocusOut)
        releaseScrollBar();
    return QTextEdit::event(pEvent);
}

// Ends a press that the scroll bar still believes in, as when a pad came up under the finger.
void ZELTextEdit::releaseScrollBar()
{
    QScrollBar* bar = verticalScrollBar();
    if (!bar)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(0, 0), QPointF(0, 0), Qt::NoButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &release);
}

} // namespace PANFx::Components
