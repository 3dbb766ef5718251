#pragma once

#include <QAbstractButton>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <string>
#include <unordered_map>

namespace bench {

/** Pictures by file, decoded once. */
class PictureCache
{
public:
    const QPixmap* get(const std::string& path);

private:
    std::unordered_map<std::string, QPixmap> m_pictures;
};

/** The font of all texts. */
const QFont& bodyFont();

/** Draws a picture and does nothing else. */
class PictureWidget : public QWidget
{
public:
    using QWidget::QWidget;

    const QPixmap* m_pUp = nullptr;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** Draws one line of text. */
class TextWidget : public QWidget
{
public:
    using QWidget::QWidget;

    QString m_text;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** Draws one of two pictures and a title over it. */
class ButtonWidget : public QWidget
{
public:
    using QWidget::QWidget;

    const QPixmap* m_pUp = nullptr;
    const QPixmap* m_pDown = nullptr;
    QString m_title;

    void setPressed(bool pressed);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    bool m_bPressed = false;
};

/** The same button on top of Qt's own base class for buttons. */
class QtButtonWidget : public QAbstractButton
{
public:
    using QAbstractButton::QAbstractButton;

    const QPixmap* m_pUp = nullptr;
    const QPixmap* m_pDown = nullptr;
    QString m_title;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** Draws a picture and fills it with another one by percent. */
class GaugeWidget : public QWidget
{
public:
    using QWidget::QWidget;

    const QPixmap* m_pBack = nullptr;
    const QPixmap* m_pFill = nullptr;

    void setPercent(int percent);

protected:
    int m_percent = 0;
};

/** A pie of the second picture that grows clockwise from the top, without a mask. */
class RoundWidget : public GaugeWidget
{
public:
    using GaugeWidget::GaugeWidget;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** A bar of two caps and what is stretched between them, and the number over it. */
class BarWidget : public GaugeWidget
{
public:
    using GaugeWidget::GaugeWidget;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace bench
